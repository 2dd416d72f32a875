// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "overlay/DimRow.h"

void dimRow(const std::uint32_t* row, std::uint32_t* out, int width)
{
    // 0.58 in 256ths. Two channels at once, and simple enough for the compiler to take several
    // pixels at once.
    constexpr std::uint32_t left = 148, even = 0x00ff00ff, green = 0x0000ff00;
    for (int x = 0; x < width; ++x) {
        const std::uint32_t redBlue = ((row[x] & even) * left >> 8) & even;
        out[x] = 0xff000000 | redBlue | (((row[x] & green) * left >> 8) & green);
    }
}
