// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/PngScanlines.h"

#include "base/PngPalette.h"
#include "base/Unpremultiply.h"

#include <algorithm>

PngScanlines::PngScanlines(const PixelRows& rows, PngColour colour, PngPalette& palette, int width)
    : m_rows(rows)
    , m_colour(colour)
    , m_palette(palette)
    , m_width(width)
{
    if (colour == PngColour::Rgba) {
        m_straight.resize(std::size_t(width));
        m_straightAbove.resize(std::size_t(width));
    }
}

std::size_t PngScanlines::length() const
{
    const std::size_t bytes = m_colour == PngColour::Palette ? 1
        : m_colour == PngColour::Rgb                         ? 3
                                                             : 4;
    return 1 + std::size_t(m_width) * bytes;
}

void PngScanlines::encode(
    const std::uint32_t* row, const std::uint32_t* above, PngFilter filter, std::uint8_t* out)
{
    if (filter == PngFilter::None)
        above = nullptr;
    *out++ = std::uint8_t(above ? PngFilter::Up : PngFilter::None);
    switch (m_colour) {
    case PngColour::Palette:
        m_palette.indices(row, out, m_width);
        break;
    case PngColour::Rgb:
        m_rows.rgb(row, above, out, m_width);
        break;
    case PngColour::Rgba:
        m_straight.swap(m_straightAbove);
        std::transform(row, row + m_width, m_straight.begin(), unpremultiplied);
        m_rows.rgba(m_straight.data(), above ? m_straightAbove.data() : nullptr, out, m_width);
        break;
    }
}
