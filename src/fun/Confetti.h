// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "fun/FxScene.h"

/// Paper in the colours of a theme that flies up and flutters down.
class Confetti final : public FxScene {
public:
    enum class Mode {
        Burst, ///< From the foot of the stage, all at once.
        Rain, ///< From above, one after the other.
    };
    struct Options {
        QRectF stage; ///< Points; pieces fly where they like, but bounds() tells how far.
        int pieces = 110;
        double duration = 1.6; ///< Seconds until the last piece is gone.
        Mode mode = Mode::Burst;
        quint32 seed = 1;
    };

    Confetti(const Options& options, const Theme& theme);

    FxSprites at(double seconds) const override;
    QRectF bounds() const override { return m_bounds; }

private:
    struct Piece {
        FxSprite::Shape shape;
        QSizeF size;
        QRgb colour;
        QPointF from;
        QPointF speed; ///< Points per second at first.
        double fall; ///< Points per second at last.
        double delay; ///< Seconds.
        double swing, swingRate, phase; ///< Points, radians per second, radians.
        double turn, turnRate, flipRate; ///< Radians, and per second.
    };
    FxSprite shown(const Piece& piece, double age, double fade) const;

    std::vector<Piece> m_pieces;
    double m_duration;
    QRectF m_bounds;
};
