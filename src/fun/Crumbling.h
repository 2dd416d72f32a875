// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "fun/FxScene.h"

/// The picture turns into coloured squares, from its right edge on, and they are blown away. What
/// has not crumbled yet is not drawn, for it is on the screen anyway.
class Crumbling final : public FxScene {
public:
    Crumbling(const FxStage& stage, double duration);

    FxSprites at(double seconds) const override;
    QRectF bounds() const override { return m_bounds; }

private:
    struct Cell {
        QPointF centre;
        QSizeF size;
        QRgb colour;
        double leaves, life; ///< Seconds.
        QPointF drift; ///< Points over its life.
        double wave, phase; ///< Points, radians.
    };
    void addCell(QRectF cell, QRgb colour, class FxDice& dice);

    std::vector<Cell> m_cells;
    QRectF m_area;
    QRectF m_bounds;
    double m_duration;
    QRgb m_shade = 0xff000000; ///< Of the hole that a cell leaves and that closes again.
};
