// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/PngData.h"

#include "base/PngChunks.h"

#include <algorithm>

namespace {

// Small enough to stay in the processor's second cache together with what the deflater works on,
// large enough that the cost of each of its calls does not show.
constexpr std::size_t sliceBytes = 128 * 1024;
constexpr std::size_t chunkBytes = 128 * 1024;

} // namespace

PngData::PngData(const PngEngine& engine, PngScanlines& scanlines)
    : m_compression(engine.compression)
    , m_scanlines(scanlines)
    , m_deflater(m_compression.makeDeflater())
    , m_lines(std::max(sliceBytes, scanlines.length()))
    , m_chunk(PngChunks::before + chunkBytes + PngChunks::behind)
{
}

void PngData::start(PngFilter filter, const ByteSink& sink)
{
    m_filter = filter;
    m_sink = &sink;
    m_lineBytes = 0;
    m_dataBytes = 0;
    m_deflater->restart();
}

Result<void> PngData::add(const std::uint32_t* row, const std::uint32_t* above)
{
    if (m_lineBytes + m_scanlines.length() > m_lines.size()) {
        if (auto done = deflate(Deflater::Input::More); !done)
            return done;
    }
    m_scanlines.encode(row, above, m_filter, m_lines.data() + m_lineBytes);
    m_lineBytes += m_scanlines.length();
    return {};
}

Result<void> PngData::finish()
{
    if (auto done = deflate(Deflater::Input::Last); !done)
        return done;
    return handOver();
}

Result<void> PngData::deflate(Deflater::Input kind)
{
    std::span<const std::uint8_t> input(m_lines.data(), m_lineBytes);
    bool finished = false;
    while (kind == Deflater::Input::Last ? !finished : !input.empty()) {
        const auto room
            = std::span(m_chunk).subspan(PngChunks::before + m_dataBytes, chunkBytes - m_dataBytes);
        const auto progress = m_deflater->deflate(input, room, kind);
        input = input.subspan(progress.read);
        finished = progress.finished;
        m_dataBytes += progress.written;
        if (m_dataBytes == chunkBytes) {
            if (auto done = handOver(); !done)
                return done;
        }
    }
    m_lineBytes = 0;
    return {};
}

Result<void> PngData::handOver()
{
    if (m_dataBytes == 0)
        return {};
    const auto chunk
        = std::span(m_chunk).first(PngChunks::before + m_dataBytes + PngChunks::behind);
    PngChunks::frame(chunk, "IDAT", m_compression);
    m_dataBytes = 0;
    return (*m_sink)(chunk);
}
