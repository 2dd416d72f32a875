// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/desktop/client/Look.h"

#include <algorithm>

namespace {

/// A colour that tells where a pixel is: neighbours and other seeds give others. 0xRRGGBB.
quint32 patternColour(int x, int y, quint32 seed)
{
    quint32 mix = quint32(x) * 73856093u ^ quint32(y) * 19349663u ^ (seed + 1) * 83492791u;
    mix = (mix ^ mix >> 13) * 0x5bd1e995u;
    return (mix ^ mix >> 15) & 0xffffff;
}

/// A colour made translucent, premultiplied. 0xAARRGGBB.
quint32 premultiplied(quint32 colour, quint32 alpha)
{
    const auto channel
        = [=](int shift) { return ((colour >> shift & 0xff) * alpha + 127) / 255 << shift; };
    return alpha << 24 | channel(16) | channel(8) | channel(0);
}

/// One pixel of a window of width × height with this look, premultiplied 0xAARRGGBB.
quint32 pixelOf(const Look& look, int x, int y, int width, int height)
{
    const int outside = std::max({look.left - x, x - (width - look.right - 1), look.top - y,
        y - (height - look.bottom - 1), 0});
    if (outside > 0)
        return premultiplied(0, quint32(std::max(0, 96 - 4 * outside)));
    const quint32 colour = look.seed ? patternColour(x, y, *look.seed) : look.colour;
    const int alpha = look.translucent ? 255 * x / std::max(1, width - 1) : 255;
    return premultiplied(colour, quint32(alpha));
}

} // namespace

QImage pictureOf(const Look& look, QSize size)
{
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < size.height(); ++y) {
        auto* const row = reinterpret_cast<quint32*>(picture.scanLine(y));
        for (int x = 0; x < size.width(); ++x)
            row[x] = pixelOf(look, x, y, size.width(), size.height());
    }
    return picture;
}
