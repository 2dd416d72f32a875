// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/// All four channels of a premultiplied pixel times factor / 255, rounded. The usual division by
/// 255 of two channels at once: (x + (x >> 8) + 0x80) >> 8.
inline std::uint32_t scaled(std::uint32_t pixel, std::uint32_t factor)
{
    constexpr std::uint32_t half = 0x00800080, even = 0x00ff00ff;
    std::uint32_t low = (pixel & even) * factor;
    std::uint32_t high = ((pixel >> 8) & even) * factor;
    low = ((low + ((low >> 8) & even) + half) >> 8) & even;
    high = (high + ((high >> 8) & even) + half) & ~even;
    return low | high;
}

/// Porter and Duff's "over" for premultiplied pixels.
inline std::uint32_t blendOver(std::uint32_t above, std::uint32_t below)
{
    return above + scaled(below, 255 - (above >> 24));
}
