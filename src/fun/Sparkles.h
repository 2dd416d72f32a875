// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "fun/FxScene.h"

/// Stars that twinkle on and around what was captured.
class Sparkles final : public FxScene {
public:
    Sparkles(const FxStage& stage, double duration);

    FxSprites at(double seconds) const override;
    QRectF bounds() const override;

private:
    struct Star {
        QPointF centre;
        double radius; ///< Points, at its largest.
        double born, life; ///< Seconds.
        double rise; ///< Points over its life.
        double turn, turning; ///< Radians, and over its life.
        QRgb colour;
    };

    std::vector<Star> m_stars;
    QRectF m_area;
    double m_duration;
    QRgb m_accent;
};
