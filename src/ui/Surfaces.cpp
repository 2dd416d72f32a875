// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "ui/Surfaces.h"

#include "ui/settings/SampleCapture.h"

Surfaces::Surfaces(
    DesktopPlatform& platform, Prefs& prefs, Rooms& rooms, AppState& state, HotkeyCenter& hotkeys)
    : m_platform(platform)
    , m_rooms(rooms)
    , m_settingsMeans {rooms.surroundings().themes, prefs, state, hotkeys, rooms.skins(),
          rooms.sounds(), rooms.fun(), rooms.updater(), *platform.workspace, platform.words,
          *platform.clipboard, [this] { return m_doctor.examine(); }, [this] { tryAnimation(); }}
    , m_recent(rooms.actions(), platform.words.showInFolder)
    , m_tray(state, prefs, rooms.fun(), rooms.surroundings().themes)
    , m_panel(rooms.surroundings(),
          {rooms.surroundings().themes, prefs, state, rooms.fun(), rooms.history(), m_recent,
              [this] { return updateNotice(); }, [this] { m_rooms.showUpdate(); }})
{
    connect(&m_tray, &TrayItem::clicked, this, [this] { m_panel.toggle(m_tray.position()); });
    connect(&state, &AppState::panelRequested, this, [this] { m_panel.open(m_tray.position()); });
    connect(&state, &AppState::settingsRequested, this, &Surfaces::showSettings);
    rooms.effects().setTrayIcon([this] { return m_tray.position(); });
}

void Surfaces::showSettings()
{
    if (!m_settings)
        m_settings = std::make_unique<SettingsWindow>(m_settingsMeans);
    m_settings->present();
}

QString Surfaces::updateNotice() const
{
    const auto& found = m_rooms.updater().available();
    return found ? tr("Update to %1").arg(found->version) : QString();
}

/// Over the middle of the screen under the pointer, as if that had been captured.
void Surfaces::tryAnimation()
{
    const auto displays = m_platform.displays->list();
    const QRect pointer(m_platform.displays->pointer(), QSize(1, 1));
    const auto* display = displayShowingMost(pointer, displays);
    if (!display)
        return;
    const QRectF screen = display->points;
    QRectF area({}, screen.size() / 2);
    area.moveCenter(screen.center());
    m_rooms.effects().play(m_rooms.effects().current(), area, sampleCapture());
}
