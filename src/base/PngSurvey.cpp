// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/PngSurvey.h"

#include "base/RowWalk.h"

#include <algorithm>
#include <cstring>

std::vector<RowRange> sampleOf(int height)
{
    // Fewer than eight rows would not let the deflater find what repeats from row to row.
    constexpr int slices = 8;
    const int rows = std::max(8, height / (32 * slices));
    if (height <= slices * rows)
        return {{0, height}};
    std::vector<RowRange> sample;
    for (int i = 0; i < slices; ++i) {
        const int first = int(std::int64_t(height - rows) * i / (slices - 1));
        sample.push_back({first, first + rows});
    }
    return sample;
}

PngSurvey::PngSurvey(PixelFormat format)
    : m_palette(format == PixelFormat::Rgb32 ? 0xff000000 : 0)
    , m_opaqueByFormat(format == PixelFormat::Rgb32)
{
}

Result<PngSurvey> PngSurvey::make(RowSource& source, const PixelRows& pixelRows)
{
    PngSurvey survey(source.format());
    const int height = source.size().height();
    // Most pictures show soon that they are neither opaque nor of few colours, and cost next to
    // nothing here; only those that might be are read as a whole.
    for (const auto range : sampleOf(height)) {
        if (auto done = survey.look(source, pixelRows, range); !done)
            return done.error();
    }
    if (auto done = survey.look(source, pixelRows, {0, height}); !done)
        return done.error();
    return survey;
}

PngColour PngSurvey::colour() const
{
    if (!m_palette.overflowed())
        return PngColour::Palette;
    return m_transparencySeen ? PngColour::Rgba : PngColour::Rgb;
}

bool PngSurvey::certain() const
{
    return m_palette.overflowed() && (m_opaqueByFormat || m_transparencySeen);
}

Result<void> PngSurvey::look(RowSource& source, const PixelRows& pixelRows, RowRange range)
{
    const int width = source.size().width();
    const std::size_t bytes = std::size_t(width) * sizeof(std::uint32_t);
    RowWalk walk(source, range.first, range.end);
    while (!certain()) {
        const auto row = walk.next();
        if (!row)
            return row.error();
        if (!*row)
            break;
        if (walk.above() && std::memcmp(*row, walk.above(), bytes) == 0)
            continue;
        m_palette.add(*row, width);
        if (!m_opaqueByFormat && !m_transparencySeen)
            m_transparencySeen = !pixelRows.opaque(*row, width);
    }
    return {};
}
