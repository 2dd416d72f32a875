// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "fun/FxScene.h"

/// The picture lifts off and flies in a bow to its landing, growing smaller on its way.
class FlyAway final : public FxScene {
public:
    FlyAway(const FxStage& stage, double duration);

    FxSprites at(double seconds) const override;
    QRectF bounds() const override { return m_bounds; }

private:
    QPointF wayAt(double done) const;

    QRectF m_area;
    QPointF m_landing;
    QPointF m_bend; ///< The control point of a quadratic curve.
    QRectF m_bounds;
    double m_duration;
    QRgb m_accent;
    QRgb m_shadow = 0xff000000;
};
