// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/DesktopWords.h"

using namespace Qt::StringLiterals;

PlatformWords desktopWords()
{
    PlatformWords words;
    words.showInFolder = u"Show in Folder"_s;
    words.permission
        = u"Your desktop does not let Pixmallow take screenshots yet. Allow it in the settings, "
          "where they say what apps may do, then restart Pixmallow."_s;
    words.home = {u"Pixmallow lives in the tray. Press %1 to capture a region, or click its "
                  "icon for more."_s,
        u"Pixmallow lives in the tray. Click its icon to capture."_s};
    words.homeWithoutTray
        = {u"Pixmallow waits in the background. Press %1 to capture a region, or start it again "
           "for more."_s,
            u"Pixmallow waits in the background. Start it again to capture."_s};
    words.shortcuts = PlatformWords::Shortcuts::Spelled;
    words.shortcutFooter
        = u"Click a shortcut, then press the keys you want. Delete clears it, Esc cancels. Keys "
          "that your desktop uses itself, such as Print, stay with it until you turn them off in "
          "its keyboard settings."_s;
    words.updateOpened = u"Opened %1 — quit Pixmallow, install the new one in place of the old "
                         "one, then open it again."_s;
    return words;
}
