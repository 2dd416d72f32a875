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

constexpr std::size_t mostKept = 4 << 20; // Bytes of compressed data.

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

/// One picture on its way into a file.
class Writer final {
public:
    Writer(RowSource& source, double scale, const ByteSink& sink, const PngEngine& engine)
        : m_source(source)
        , m_scale(scale)
        , m_sink(sink)
        , m_engine(engine)
        , m_palette(source.format())
        , m_all {0, source.size().height()}
    {
    }

    Result<void> write()
    {
        const auto many = hasManyColours(m_source, m_palette);
        if (!many)
            return many.error();
        if (!*many) {
            const auto written = writeWithPalette();
            if (!written)
                return written.error();
            if (*written)
                return {};
        }
        return writeTrueColour();
    }

private:
    /// Whether there are few enough colours; else nothing is written.
    Result<bool> writeWithPalette();
    Result<void> writeTrueColour();

    Result<void> start(PngColour colour);
    Result<void> end();
    Result<void> compress(RowRange range, PngData& data);
    Result<PngFilter> chooseFilter(PngData& data);

    RowSource& m_source;
    double m_scale;
    const ByteSink& m_sink;
    const PngEngine& m_engine;
    PngPalette m_palette;
    RowRange m_all;
};

Result<bool> Writer::writeWithPalette()
{
    PngScanlines scanlines(m_engine.rows, PngColour::Palette, m_palette, m_source.size().width());
    PngData data(m_engine, scanlines);
    // In the file the palette comes first, but it is known last. Few colours compress well, so the
    // data are kept meanwhile, which is much faster than to read the picture twice.
    std::vector<Bytes> kept;
    std::size_t size = 0;
    const ByteSink keep = [&](std::span<const std::uint8_t> bytes) -> Result<void> {
        size += bytes.size();
        if (size <= mostKept)
            kept.emplace_back(bytes.begin(), bytes.end());
        else
            kept.clear();
        return {};
    };
    // Neighbouring numbers of colours mean nothing, so there is no filter.
    data.start(PngFilter::None, keep);
    if (auto done = compress(m_all, data); !done)
        return done.error();
    if (m_palette.overflowed())
        return false;
    if (auto done = start(PngColour::Palette); !done)
        return done.error();
    for (const auto& bytes : kept) {
        if (auto done = m_sink(bytes); !done)
            return done.error();
    }
    if (size > mostKept) {
        data.start(PngFilter::None, m_sink);
        if (auto done = compress(m_all, data); !done)
            return done.error();
    }
    if (auto done = end(); !done)
        return done.error();
    return true;
}

Result<void> Writer::writeTrueColour()
{
    const auto colour = trueColour(m_source, m_engine.rows);
    if (!colour)
        return colour.error();
    PngScanlines scanlines(m_engine.rows, *colour, m_palette, m_source.size().width());
    PngData data(m_engine, scanlines);
    const auto filter = chooseFilter(data);
    if (!filter)
        return filter.error();
    if (auto done = start(*colour); !done)
        return done;
    data.start(*filter, m_sink);
    if (auto done = compress(m_all, data); !done)
        return done;
    return end();
}

Result<void> Writer::start(PngColour colour)
{
    Bytes file {0x89, 'P', 'N', 'G', '\r', '\n', 0x1a, '\n'};
    const auto& compression = m_engine.compression;
    PngChunks::append(file, "IHDR", header(m_source.size(), colour), compression);
    PngChunks::append(file, "pHYs", resolution(m_scale), compression);
    if (colour == PngColour::Palette)
        appendPalette(file, m_palette, compression);
    return m_sink(file);
}

Result<void> Writer::end()
{
    Bytes file;
    PngChunks::append(file, "IEND", {}, m_engine.compression);
    return m_sink(file);
}

/// Ends early when the palette overflows.
Result<void> Writer::compress(RowRange range, PngData& data)
{
    const bool overflowed = m_palette.overflowed();
    const auto walk = walkRows(
        m_source, range, [&](const std::uint32_t* row, const std::uint32_t* above) -> Result<Walk> {
            if (auto done = data.add(row, above); !done)
                return done.error();
            return m_palette.overflowed() == overflowed ? Walk::On : Walk::Stop;
        });
    if (!walk)
        return walk.error();
    return data.finish();
}

/// The filter that makes the sample of the picture smaller.
Result<PngFilter> Writer::chooseFilter(PngData& data)
{
    if (m_all.end == 1)
        return PngFilter::None;
    std::size_t none = 0;
    std::size_t up = 0;
    for (const auto range : sampleOf(m_all.end)) {
        for (const auto filter : {PngFilter::None, PngFilter::Up}) {
            const ByteSink count = [&](std::span<const std::uint8_t> bytes) -> Result<void> {
                (filter == PngFilter::Up ? up : none) += bytes.size();
                return {};
            };
            data.start(filter, count);
            if (auto done = compress(range, data); !done)
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
    return Writer(source, scale, sink, engine).write();
}
