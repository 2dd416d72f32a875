// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/DesktopWords.h"

#include "base/Words.h"

PlatformWords desktopWords()
{
    PlatformWords words;
    words.showInFolder = Words::tr("Show in Folder");
    words.permission = Words::tr(
        "Your desktop does not let Pixmallow take screenshots yet. Allow it in the settings, "
        "where they say what apps may do, then restart Pixmallow.");
    words.home
        = {Words::tr("Pixmallow lives in the tray. Press %1 to capture a region, or click its "
                     "icon for more."),
            Words::tr("Pixmallow lives in the tray. Click its icon to capture.")};
    words.homeWithoutTray
        = {Words::tr(
               "Pixmallow waits in the background. Press %1 to capture a region, or start it again "
               "for more."),
            Words::tr("Pixmallow waits in the background. Start it again to capture.")};
    words.shortcuts = PlatformWords::Shortcuts::Spelled;
    words.shortcutFooter = Words::tr(
        "Click a shortcut, then press the keys you want. Delete clears it, Esc cancels. Keys "
        "that your desktop uses itself, such as Print, stay with it until you turn them off in "
        "its keyboard settings.");
    words.updateOpened
        = Words::tr("Opened %1 — quit Pixmallow, install the new one in place of the old "
                    "one, then open it again.");
    return words;
}
