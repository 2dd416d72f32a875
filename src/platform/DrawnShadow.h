// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Bitmap.h"

/// The shadow that is drawn for windows which have none of their own, in points.
struct ShadowStyle {
    double blur = 28; ///< How far it reaches beyond the window: twice the standard deviation.
    double offset = 10; ///< How far it falls below the window.
    double opacity = 0.36;
};

/// A window's picture on its soft shadow: larger than it by blur on all sides and offset at the
/// foot (less offset at the head). The shadow follows the window's own alpha.
/// @param scale device pixels per point.
Bitmap withDrawnShadow(const Bitmap& window, double scale, const ShadowStyle& style = {});
