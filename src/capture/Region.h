// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Displays.h"

#include <QImage>

/// One screen as it was when a selection began.
struct FrozenScreen {
    DisplayInfo display;
    QImage image; ///< Device pixels of the display.
};

/// What a selection is made on.
struct RegionQuestion {
    QList<FrozenScreen> screens; ///< Not empty.
    QList<QRect> windows; ///< Frames to be taken by a click, native, front-most first.
    QString purpose; ///< Shown to the user; empty for an ordinary capture.
};

/// A selection: the screen by its index among those of the question, and a rectangle in points of
/// that screen, y up, origin at its bottom left.
struct RegionResult {
    qsizetype screenIndex = 0;
    QRectF rect;
};
