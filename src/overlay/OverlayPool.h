// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "overlay/OverlayWindow.h"

#include <QTimer>

#include <vector>

/// Keeps the windows of the last selection for a while: their memory costs more time than all else
/// of showing them.
class OverlayPool final {
public:
    explicit OverlayPool(
        SurfaceTraits& surfaces, std::chrono::milliseconds kept = std::chrono::seconds(30));

    SurfaceTraits& surfaces() const { return m_surfaces; }

    /// A hidden window for a screen, a kept one if the screen has not changed.
    std::unique_ptr<OverlayWindow> take(const DisplayInfo& display);

    /// Dismisses a window and keeps it.
    void giveBack(std::unique_ptr<OverlayWindow> window);

private:
    SurfaceTraits& m_surfaces;
    std::vector<std::unique_ptr<OverlayWindow>> m_windows;
    QTimer m_expiry;
};
