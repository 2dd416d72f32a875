// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "fun/FxSprite.h"

#include <algorithm>
#include <cmath>

QRectF FxSprite::area() const
{
    return {centre - QPointF(size.width(), size.height()) / 2, size};
}

QRectF FxSprite::box() const
{
    const double sine = std::abs(std::sin(turn)), cosine = std::abs(std::cos(turn));
    // One more for edges that are blended with what lies around.
    const double width = size.width() * cosine + size.height() * sine + 2 * (thickness + 1);
    const double height = size.width() * sine + size.height() * cosine + 2 * (thickness + 1);
    return {centre.x() - width / 2, centre.y() - height / 2, width, height};
}

QRgb faded(QRgb colour, double opacity)
{
    const int alpha = int(std::lround(qAlpha(colour) * std::clamp(opacity, 0.0, 1.0)));
    return (colour & 0x00ffffff) | (QRgb(alpha) << 24);
}
