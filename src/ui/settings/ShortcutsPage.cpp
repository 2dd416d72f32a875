// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "ui/settings/SettingsPages.h"

#include "shortcuts/ShortcutSettings.h"

void SettingsPages::fillShortcuts(SettingsPage& page, const SettingsMeans& means)
{
    AppState& state = means.state;
    auto* shortcuts = new ShortcutSettings(
        {means.themes, {means.prefs, means.hotkeys, [&state] { state.registerHotkeys(); }},
            [&state](CaptureKind kind) { return state.refusedHotkeys().contains(kind); },
            means.words.shortcutFooter});
    QObject::connect(&state, &AppState::hotkeysRegistered, shortcuts, &ShortcutSettings::mark);
    page.addBelow(shortcuts);
}
