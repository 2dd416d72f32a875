// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/PngSurvey.h"

#include <algorithm>

namespace {

Result<bool> stops(RowSource& source, const std::vector<RowRange>& ranges, const RowVisitor& visit)
{
    for (const auto range : ranges) {
        const auto walk = walkRows(source, range, visit);
        if (!walk)
            return walk.error();
        if (*walk == Walk::Stop)
            return true;
    }
    return false;
}

} // namespace

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

Result<bool> hasManyColours(RowSource& source, PngPalette& palette)
{
    const int width = source.size().width();
    std::vector<std::uint8_t> indices(static_cast<std::size_t>(width));
    return stops(source, sampleOf(source.size().height()), [&](const std::uint32_t* row, auto) {
        palette.indices(row, indices.data(), width);
        return palette.overflowed() ? Walk::Stop : Walk::On;
    });
}

Result<PngColour> trueColour(RowSource& source, const PixelRows& pixelRows)
{
    if (source.format() == PixelFormat::Rgb32)
        return PngColour::Rgb;
    auto ranges = sampleOf(source.size().height());
    ranges.push_back({0, source.size().height()});
    const auto transparent = stops(source, ranges, [&](const std::uint32_t* row, auto) {
        return pixelRows.opaque(row, source.size().width()) ? Walk::On : Walk::Stop;
    });
    if (!transparent)
        return transparent.error();
    return *transparent ? PngColour::Rgba : PngColour::Rgb;
}
