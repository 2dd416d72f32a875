// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <span>

/// Compresses bytes into one zlib stream (RFC 1950), piece by piece.
class Deflater {
public:
    /// Whether more input follows the piece that is handed over.
    enum class Input { More, Last };

    struct Progress {
        std::size_t read = 0; ///< Bytes taken from the front of the input.
        std::size_t written = 0; ///< Bytes put at the front of the output.
        bool finished = false; ///< The stream is complete, its check sum included.
    };

    virtual ~Deflater() = default;

    /// Begins a new stream, whatever became of the one before.
    virtual void restart() = 0;

    /// Reads until the input is used up or the output is full. Output may lag behind the input;
    /// after the last piece call on with what is left of it, even nothing, until finished.
    virtual Progress deflate(
        std::span<const std::uint8_t> input, std::span<std::uint8_t> output, Input kind)
        = 0;
};

/// One library's way to compress, with its CRC-32 (that of PNG and zlib; 0 to begin with).
struct Compression {
    std::unique_ptr<Deflater> (*makeDeflater)();
    std::uint32_t (*crc)(std::uint32_t before, std::span<const std::uint8_t> bytes);
};

const Compression& zlibCompression();

/// Several times as fast as zlib; null where the build or the processor lacks what that takes.
const Compression* isalCompression();
