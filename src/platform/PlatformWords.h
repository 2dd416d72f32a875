// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Words.h"

/// The few texts of surfaces that would not be true on every system. What stands here is true where
/// nothing else is said; a back end replaces what is not true on its system, and nothing else.
struct PlatformWords {
    /// Where the program is to be found, and how a capture is started there.
    struct Home {
        QString withShortcut; ///< %1 is the shortcut of a region.
        QString withoutShortcut; ///< Where the user has cleared it.
    };

    QString showInFolder = Words::tr("Show in Finder");

    QString permission = Words::tr(
        "macOS needs your permission before any app can take screenshots. Turn on Pixmallow in "
        "System Settings › Privacy & Security › Screen & System Audio Recording, then restart "
        "Pixmallow.");
    Home home {Words::tr("Pixmallow lives in the menu bar. Press %1 to capture a region, or "
                         "click the camera icon for more."),
        Words::tr("Pixmallow lives in the menu bar. Click the camera icon to capture.")};
    Home homeWithoutTray = home; ///< Where the desktop shows no icons of programs.

    enum class Shortcuts { Glyphs, Spelled }; ///< "⌃⇧1" or "Ctrl+Shift+1", within sentences.
    Shortcuts shortcuts = Shortcuts::Glyphs;
    QString shortcutFooter = Words::tr(
        "Click a shortcut, then press the keys you want. Delete clears it, Esc cancels. ⇧⌘3/4/5 "
        "belong to the macOS screenshot tool — turn those off in System Settings › Keyboard › "
        "Keyboard Shortcuts › Screenshots if you want to use them here.");

    /// %1 is the name of the file with the new version.
    QString updateOpened = Words::tr(
        "Opened %1 — quit Pixmallow, drag the new one into Applications (Replace), then open it "
        "again.");
};
