// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

#include <optional>

/// How a client window is painted, so that a test knows each of its pixels.
struct Look {
    quint32 colour = 0x4080c0; ///< 0xRRGGBB
    std::optional<quint32> seed; ///< A pattern instead of the colour.
    bool translucent = false; ///< Alpha grows from 0 at the left edge to 255 at the right one.
    int left = 0, right = 0, top = 0, bottom = 0; ///< Pixels of shadow inside the window's edges.

    bool hasShadow() const { return left || right || top || bottom; }
};

/// What a client window of this look shows without its frame, as ARGB32_Premultiplied.
QImage pictureOf(const Look& look, QSize size);

/// A picture whose pixels differ everywhere, so that any shift is seen.
inline QImage patternOf(QSize size, quint32 seed = 7)
{
    return pictureOf({.seed = seed}, size);
}

/// How many pixels a shaped window lacks at both ends of row y: its corners are cut off.
inline int cornerInset(int y, int height)
{
    return qMax(0, 12 - qMin(y, height - 1 - y));
}
