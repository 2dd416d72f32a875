// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QImage>

class QPainter;

/// The lens beside the pointer: the pixels around it as hard blocks, the one under it marked. Works
/// in device pixels.
class Magnifier final {
public:
    Magnifier(QImage picture, double scale, QColor accent);

    /// All that is drawn for a lens at this place, its border included.
    QRect extent(QRect lens) const
    {
        return lens.adjusted(-m_border, -m_border, m_border, m_border);
    }

    /// @param lens as HudLayout::lens gives it.
    /// @param pixel the one in the middle, on the picture.
    void draw(QPainter& painter, QRect lens, QPoint pixel);

private:
    void makeFrame(double scale, QColor accent);
    void fillBlocks(QPoint pixel);
    void roundCorners();

    QImage m_picture;
    int m_block; ///< Side of one magnified pixel.
    int m_border; ///< How far the border reaches beyond the lens.
    QImage m_lens; ///< Drawn anew each time, its memory kept.
    QImage m_corner; ///< How much of the top left corner's pixels is within the rounding, in alpha.
    QImage m_frame; ///< What lies over the blocks: the border and the mark, of size extent().
};
