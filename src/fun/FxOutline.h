// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "fun/FxRules.h"
#include "platform/SurfaceTraits.h"
#include "widgets/FrameClock.h"

#include <QWindow>

/// A closing frame around where a capture was taken, for where windows are not blended: a window
/// cut to that frame. The system fills it, for to paint it we would need memory for the whole
/// screen.
class FxOutline final : public QWindow {
public:
    /// Begins at once.
    /// @param area points of the display's top left corner, y down
    /// @param duration seconds
    FxOutline(SurfaceTraits& surfaces, const DisplayInfo& display, QRectF area, double duration,
        QColor colour);

private:
    void showAt(double seconds);

    const QRectF m_area;
    const double m_duration;
    FrameClock m_clock;
};
