// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/// How far ahead of a pixel to fetch others from memory. The processor does so by itself, but only
/// to the end of a page.
inline constexpr int pixelsAhead = 1024;

/// The inner loops over one row of pixels, 0xAARRGGBB each. Outputs hold exactly what is said, with
/// nothing written behind it.
struct PixelRows {
    /// Bytes red, green, blue of each pixel: 3 × width. With a row above, each byte less the one
    /// above it (modulo 256).
    void (*rgb)(
        const std::uint32_t* row, const std::uint32_t* aboveOrNull, std::uint8_t* out, int width);
    /// The same of bytes red, green, blue, alpha: 4 × width.
    void (*rgba)(
        const std::uint32_t* row, const std::uint32_t* aboveOrNull, std::uint8_t* out, int width);
    /// Whether every alpha is 255.
    bool (*opaque)(const std::uint32_t* row, int width);
};

const PixelRows& portablePixelRows();

/// With the processor's vector instructions; null where the build or the processor has none.
const PixelRows* vectorPixelRows();
