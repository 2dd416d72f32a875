// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/AppState.h"
#include "base/Prefs.h"
#include "doctor/DoctorRules.h"
#include "fun/CaptureFx.h"
#include "fun/Fun.h"
#include "platform/Clipboard.h"
#include "platform/PlatformWords.h"
#include "platform/Workspace.h"
#include "skins/Skins.h"
#include "skins/Sounds.h"
#include "update/Updater.h"
#include "widgets/Theme.h"

/// What the pages of the settings reach.
struct SettingsMeans {
    const Themes& themes;
    Prefs& prefs;
    AppState& state;
    HotkeyCenter& hotkeys;
    Skins& skins;
    Sounds& sounds;
    Fun& fun;
    Updater& updater;
    Workspace& workspace;
    const PlatformWords& words;
    Clipboard& clipboard;
    std::function<Pending<QList<DoctorCheck>>()> examine; ///< As `pixmallow doctor` does.
    std::function<void()> tryAnimation; ///< Plays the capture animation, on nothing captured.
};
