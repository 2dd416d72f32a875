// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>
#include <QRegion>

#include <vector>

/// Which parts of a screen are touched, in coarse squares: many small things in few rectangles.
class FxTiles final {
public:
    /// @param screen points; what lies outside is left out
    /// @param side of a square, whole points
    FxTiles(QSize screen, int side);

    void add(QRectF box);
    void add(const FxTiles& others); ///< Of the same screen.
    void clear();
    QRegion region() const; ///< Points.

private:
    QSize m_screen;
    int m_side;
    int m_columns, m_rows;
    std::vector<char> m_touched;
};
