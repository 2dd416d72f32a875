// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "app/Rooms.h"

Rooms::Rooms(DesktopPlatform& platform, const Prefs& prefs, HistoryStore& history)
    : m_platform(platform)
    , m_prefs(prefs)
    , m_history(history)
    , m_overlayPool(*platform.surfaces)
{
}

CaptureStages Rooms::stages()
{
    CaptureStages stages;
    stages.selectRegion = [this](const RegionQuestion& question) { return selectRegion(question); };
    stages.addToHistory = [this](const Shot& shot, const QByteArray& png, const QString& path) {
        return m_history.add(shot.image, shot.scale, path, shot.app, png);
    };
    return stages;
}

Pending<RegionResult> Rooms::selectRegion(const RegionQuestion& question)
{
    OverlayStyle style;
    style.crosshair = m_prefs.get(Prefs::keys.showCrosshair);
    style.magnifier = m_prefs.get(Prefs::keys.showMagnifier);
    m_overlay = std::make_unique<RegionOverlay>(m_overlayPool, *m_platform.displays, style);
    return m_overlay->select(question);
}
