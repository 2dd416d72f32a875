// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "app/Rooms.h"

Rooms::Rooms(DesktopPlatform& platform, const Prefs& prefs)
    : m_platform(platform)
    , m_prefs(prefs)
    , m_overlayPool(*platform.surfaces)
{
}

CaptureStages Rooms::stages()
{
    CaptureStages stages;
    stages.selectRegion = [this](const RegionQuestion& question) { return selectRegion(question); };
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
