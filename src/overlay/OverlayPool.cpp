// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "overlay/OverlayPool.h"

#include <algorithm>

OverlayPool::OverlayPool(SurfaceTraits& surfaces, std::chrono::milliseconds kept)
    : m_surfaces(surfaces)
{
    m_expiry.setSingleShot(true);
    m_expiry.setInterval(kept);
    m_expiry.callOnTimeout([this] { m_windows.clear(); });
}

std::unique_ptr<OverlayWindow> OverlayPool::take(const DisplayInfo& display)
{
    m_expiry.stop();
    const auto kept = std::find_if(m_windows.begin(), m_windows.end(),
        [&display](const auto& window) { return window->display() == display; });
    if (kept == m_windows.end())
        return std::make_unique<OverlayWindow>(m_surfaces, display);
    auto window = std::move(*kept);
    m_windows.erase(kept);
    return window;
}

void OverlayPool::giveBack(std::unique_ptr<OverlayWindow> window)
{
    window->dismiss();
    m_windows.push_back(std::move(window));
    m_expiry.start();
}
