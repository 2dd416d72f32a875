// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/PngEngine.h"
#include "base/PngScanlines.h"
#include "base/PngWriter.h"

/// Filters and compresses rows of a picture into IDAT chunks, each handed to the sink when it is
/// full.
class PngData final {
public:
    /// References must live as long.
    PngData(const PngEngine& engine, PngScanlines& scanlines);

    /// Begins anew with the first row of a picture.
    void start(PngFilter filter, const ByteSink& sink);

    /// The row above is the one added before, or null for the first.
    Result<void> add(const std::uint32_t* row, const std::uint32_t* above);

    /// Hands over what is left, the end of the stream included.
    Result<void> finish();

private:
    Result<void> deflate(Deflater::Input kind);
    Result<void> handOver();

    const Compression& m_compression;
    PngScanlines& m_scanlines;
    PngFilter m_filter = PngFilter::None;
    const ByteSink* m_sink = nullptr;
    std::unique_ptr<Deflater> m_deflater;
    std::vector<std::uint8_t> m_lines; // Filtered, not yet compressed.
    std::size_t m_lineBytes = 0; // Used of m_lines.
    std::vector<std::uint8_t> m_chunk;
    std::size_t m_dataBytes = 0; // Used of the chunk's data.
};
