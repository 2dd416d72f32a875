// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/DoctorProcess.h"
#include "app/Rooms.h"
#include "ui/TrayItem.h"
#include "ui/panel/MenuPanel.h"
#include "ui/settings/SettingsWindow.h"

/// The program's place in the tray, and what opens from there: the panel and the settings.
class Surfaces final : public QObject {
    Q_OBJECT

public:
    Surfaces(DesktopPlatform& platform, Prefs& prefs, Rooms& rooms, AppState& state,
        HotkeyCenter& hotkeys);

private:
    void showSettings();
    QString updateNotice() const; ///< Empty where there is none.
    void tryAnimation();

    DesktopPlatform& m_platform;
    Rooms& m_rooms;
    DoctorProcess m_doctor {QCoreApplication::applicationFilePath()};
    const SettingsMeans m_settingsMeans;
    RecentActions m_recent;
    TrayItem m_tray;
    MenuPanel m_panel;
    std::unique_ptr<SettingsWindow> m_settings; ///< Made when it is first asked for.
};
