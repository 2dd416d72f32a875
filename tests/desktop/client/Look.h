// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>

/// How a client window is painted, so that a test knows each of its pixels.
struct Look {
    std::uint32_t colour = 0x4080c0; ///< 0xRRGGBB
    std::optional<std::uint32_t> seed; ///< A pattern instead of the colour.
    bool translucent = false; ///< Alpha grows from 0 at the left edge to 255 at the right one.
    int left = 0, right = 0, top = 0, bottom = 0; ///< Pixels of shadow inside the window's edges.

    bool hasShadow() const { return left || right || top || bottom; }
};

/// A colour that tells where a pixel is: neighbours and other seeds give others. 0xRRGGBB.
constexpr std::uint32_t patternColour(int x, int y, std::uint32_t seed)
{
    std::uint32_t mix
        = std::uint32_t(x) * 73856093u ^ std::uint32_t(y) * 19349663u ^ (seed + 1) * 83492791u;
    mix = (mix ^ mix >> 13) * 0x5bd1e995u;
    return (mix ^ mix >> 15) & 0xffffff;
}

/// A colour made translucent, premultiplied. 0xAARRGGBB.
constexpr std::uint32_t premultiplied(std::uint32_t colour, std::uint32_t alpha)
{
    const auto channel
        = [=](int shift) { return ((colour >> shift & 0xff) * alpha + 127) / 255 << shift; };
    return alpha << 24 | channel(16) | channel(8) | channel(0);
}

/// One pixel of a window of width × height with this look, premultiplied 0xAARRGGBB.
constexpr std::uint32_t pixelOf(const Look& look, int x, int y, int width, int height)
{
    const int outside = std::max({look.left - x, x - (width - look.right - 1), look.top - y,
        y - (height - look.bottom - 1), 0});
    if (outside > 0)
        return premultiplied(0, std::uint32_t(std::max(0, 96 - 4 * outside)));
    const std::uint32_t colour = look.seed ? patternColour(x, y, *look.seed) : look.colour;
    const int alpha = look.translucent ? 255 * x / std::max(1, width - 1) : 255;
    return premultiplied(colour, std::uint32_t(alpha));
}

/// How many pixels a shaped window lacks at both ends of row y: its corners are rounded.
constexpr int roundedInset(int y, int height)
{
    constexpr int radius = 12;
    const int depth = std::min(y, height - 1 - y);
    int inset = 0;
    while (depth < radius && inset < radius) {
        const int dx = 2 * (radius - inset) - 1; // Twice the distance of the pixel's middle.
        const int dy = 2 * (radius - depth) - 1;
        if (dx * dx + dy * dy <= 4 * radius * radius)
            break;
        ++inset;
    }
    return inset;
}
