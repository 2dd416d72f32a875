// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

/// How a selection looks.
struct OverlayStyle {
    QColor accent {0x3d, 0x93, 0xff}; ///< Bright: all around it is dimmed.
    bool crosshair = true; ///< Guides through the pointer while nothing is dragged.
    bool magnifier = true;
};
