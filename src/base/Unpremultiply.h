// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>

/// The pixel 0xAARRGGBB with its colours no longer multiplied by alpha: what qUnpremultiply() of
/// QtGui gives, except that a colour brighter than its alpha, which some programs draw, becomes
/// full instead of dark.
inline std::uint32_t unpremultiplied(std::uint32_t pixel)
{
    // 255 / alpha with 16 bits behind the point.
    static constexpr auto factors = [] {
        std::array<std::uint32_t, 256> table {};
        for (std::uint32_t alpha = 1; alpha < 256; ++alpha)
            table[alpha] = 0x00ff00ff / alpha;
        return table;
    }();
    const std::uint32_t alpha = pixel >> 24;
    if (alpha == 255)
        return pixel;
    const auto colour = [&](int shift) {
        const std::uint32_t value = ((pixel >> shift) & 0xff) * factors[alpha] + 0x8000;
        return std::min(value >> 16, 255u) << shift;
    };
    return alpha << 24 | colour(16) | colour(8) | colour(0);
}
