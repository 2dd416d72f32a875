// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QString>

#include <vector>

/// One monitor of a virtual desktop.
struct Monitor {
    QString name;
    QRect rectangle; ///< Native pixels in the root window.
    double scale = 1; ///< Pixels per point, told to clients by QT_SCREEN_SCALE_FACTORS.
};

enum class Compositor { None, Picom };

/// What a virtual desktop consists of.
struct DesktopOptions {
    /// Native pixels of the root window. Empty: what the monitors cover, or 1280 by 800.
    QSize size = {};

    /// The first takes the server's only output and becomes the primary one. None: one monitor
    /// named "screen" that is the whole root window.
    std::vector<Monitor> monitors = {};

    /// Pixels per point everywhere, told to clients by QT_SCALE_FACTOR; Qt multiplies it with the
    /// scales of the monitors.
    double scale = 1;

    Compositor compositor = Compositor::None;
    bool windowManager = true; ///< openbox
    bool tray = false; ///< tint2 at the bottom, 30 pixels high, with a list of windows and a tray.
};
