// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/PngWriter.h"

#include "base/PngChunks.h"
#include "base/PngData.h"
#include "base/PngSurvey.h"
#include "base/RowWalk.h"
#include "base/Unpremultiply.h"

#include <cmath>

namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes header(QSize size, PngColour colour)
{
    Bytes data(13); // The last three: the only compression, the only filters, no interlacing.
    PngChunks::putBigEndian(&data[0], std::uint32_t(size.width()));
    PngChunks::putBigEndian(&data[4], std::uint32_t(size.height()));
    data[8] = 8; // Bits per sample.
    data[9] = std::uint8_t(colour);
    return data;
}

Bytes resolution(double scale)
{
    constexpr double metresPerInch = 0.0254;
    const auto pixelsPerMetre = std::uint32_t(std::lround(scale * 72 / metresPerInch));
    Bytes data(9);
    PngChunks::putBigEndian(&data[0], pixelsPerMetre);
    PngChunks::putBigEndian(&data[4], pixelsPerMetre);
    data[8] = 1; // The unit is the metre.
    return data;
}

void appendPalette(Bytes& file, const PngPalette& palette, const Compression& compression)
{
    Bytes colours;
    Bytes alphas;
    std::size_t lastTransparent = 0;
    for (const auto colour : palette.colours()) {
        const std::uint32_t pixel = unpremultiplied(colour);
        for (const int shift : {16, 8, 0})
            colours.push_back(std::uint8_t(pixel >> shift));
        alphas.push_back(std::uint8_t(pixel >> 24));
        if (alphas.back() != 255)
            lastTransparent = alphas.size();
    }
    PngChunks::append(file, "PLTE", colours, compression);
    alphas.resize(lastTransparent); // Entries behind the list are opaque.
    if (!alphas.empty())
        PngChunks::append(file, "tRNS", alphas, compression);
}

Bytes startOfFile(QSize size, double scale, const PngSurvey& survey, const Compression& compression)
{
    Bytes file {0x89, 'P', 'N', 'G', '\r', '\n', 0x1a, '\n'};
    PngChunks::append(file, "IHDR", header(size, survey.colour()), compression);
    PngChunks::append(file, "pHYs", resolution(scale), compression);
    if (survey.colour() == PngColour::Palette)
        appendPalette(file, survey.palette(), compression);
    return file;
}

Result<void> write(RowSource& source, RowRange range, PngData& data)
{
    RowWalk walk(source, range.first, range.end);
    for (;;) {
        const auto row = walk.next();
        if (!row)
            return row.error();
        if (!*row)
            return data.finish();
        if (auto done = data.add(*row, walk.above()); !done)
            return done;
    }
}

/// The filter that makes the sample of the picture smaller.
Result<PngFilter> chooseFilter(RowSource& source, PngData& data)
{
    std::size_t none = 0;
    std::size_t up = 0;
    for (const auto range : sampleOf(source.size().height())) {
        for (const auto filter : {PngFilter::None, PngFilter::Up}) {
            const ByteSink count = [&](std::span<const std::uint8_t> bytes) -> Result<void> {
                (filter == PngFilter::Up ? up : none) += bytes.size();
                return {};
            };
            data.start(filter, count);
            if (auto done = write(source, range, data); !done)
                return done.error();
        }
    }
    return up < none ? PngFilter::Up : PngFilter::None;
}

} // namespace

Result<void> writePng(RowSource& source, double scale, const ByteSink& sink)
{
    return writePng(source, scale, sink, PngEngine::fastest());
}

Result<void> writePng(
    RowSource& source, double scale, const ByteSink& sink, const PngEngine& engine)
{
    const auto survey = PngSurvey::make(source, engine.rows);
    if (!survey)
        return survey.error();
    PngScanlines scanlines(engine.rows, survey->colour(), survey->palette(), source.size().width());
    PngData data(engine, scanlines);

    auto filter = PngFilter::None; // For a palette, whose neighbouring numbers mean nothing.
    if (survey->colour() != PngColour::Palette && source.size().height() > 1) {
        const auto chosen = chooseFilter(source, data);
        if (!chosen)
            return chosen.error();
        filter = *chosen;
    }

    const auto start = startOfFile(source.size(), scale, *survey, engine.compression);
    if (auto done = sink(start); !done)
        return done;
    data.start(filter, sink);
    if (auto done = write(source, {0, source.size().height()}, data); !done)
        return done;
    Bytes end;
    PngChunks::append(end, "IEND", {}, engine.compression);
    return sink(end);
}
