// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Deflater.h"

#include <span>
#include <string_view>
#include <vector>

/// The frame that PNG puts around each piece of a file: length, type, data, CRC of type and data.
namespace PngChunks {

constexpr std::size_t before = 8; ///< Bytes of length and type.
constexpr std::size_t behind = 4; ///< Bytes of the CRC.

void putBigEndian(std::uint8_t* out, std::uint32_t value);

/// Completes a chunk whose data stands in place already, `before` bytes into the buffer and with
/// `behind` bytes of room after it.
void frame(std::span<std::uint8_t> chunk, std::string_view type, const Compression& compression);

/// Adds a whole chunk to the end of a file.
void append(std::vector<std::uint8_t>& file, std::string_view type,
    std::span<const std::uint8_t> data, const Compression& compression);

} // namespace PngChunks
