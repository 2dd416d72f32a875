// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/PixelRows.h"

#include <cstdint>
#include <vector>

class PngPalette;

/// The colour types of the format that are written, all with 8 bits per sample.
enum class PngColour : std::uint8_t { Rgb = 2, Palette = 3, Rgba = 6 };

enum class PngFilter : std::uint8_t { None = 0, Up = 2 };

/// Makes a PNG scan line, filter byte included, of each row of a picture.
class PngScanlines final {
public:
    /// The palette, which is asked only with PngColour::Palette, takes up what colours come.
    PngScanlines(const PixelRows& rows, PngColour colour, PngPalette& palette, int width);

    std::size_t length() const; ///< Bytes of one line.

    /// Writes length() bytes. `above` is the row that was encoded last, or null: then the line is
    /// unfiltered.
    void encode(
        const std::uint32_t* row, const std::uint32_t* above, PngFilter filter, std::uint8_t* out);

private:
    const PixelRows& m_rows;
    PngColour m_colour;
    PngPalette& m_palette;
    int m_width;
    // Rgba only: this row and the one above, no longer premultiplied.
    std::vector<std::uint32_t> m_straight;
    std::vector<std::uint32_t> m_straightAbove;
};
