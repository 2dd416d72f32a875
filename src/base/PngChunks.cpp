// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/PngChunks.h"

#include <algorithm>

void PngChunks::putBigEndian(std::uint8_t* out, std::uint32_t value)
{
    for (int shift = 24; shift >= 0; shift -= 8)
        *out++ = std::uint8_t(value >> shift);
}

void PngChunks::frame(
    std::span<std::uint8_t> chunk, std::string_view type, const Compression& compression)
{
    putBigEndian(chunk.data(), std::uint32_t(chunk.size() - before - behind));
    std::copy(type.begin(), type.end(), chunk.begin() + 4);
    const auto checked = chunk.subspan(4, chunk.size() - 4 - behind);
    putBigEndian(chunk.last(behind).data(), compression.crc(0, checked));
}

void PngChunks::append(std::vector<std::uint8_t>& file, std::string_view type,
    std::span<const std::uint8_t> data, const Compression& compression)
{
    const std::size_t start = file.size();
    file.resize(start + before);
    file.insert(file.end(), data.begin(), data.end());
    file.resize(file.size() + behind);
    frame(std::span(file).subspan(start), type, compression);
}
