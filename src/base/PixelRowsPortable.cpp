// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/PixelRows.h"

namespace {

constexpr std::uint32_t byteOf(std::uint32_t pixel, int shift)
{
    return (pixel >> shift) & 0xff;
}

struct Plain {
    std::uint32_t operator()(int x, int shift) const { return byteOf(row[x], shift); }
    const std::uint32_t* row;
};

struct Difference {
    std::uint32_t operator()(int x, int shift) const
    {
        return byteOf(row[x], shift) - byteOf(above[x], shift);
    }
    const std::uint32_t* row;
    const std::uint32_t* above;
};

template <typename Value>
void writeRgb(Value value, std::uint8_t* out, int width)
{
    for (int x = 0; x < width; ++x, out += 3) {
        out[0] = std::uint8_t(value(x, 16));
        out[1] = std::uint8_t(value(x, 8));
        out[2] = std::uint8_t(value(x, 0));
    }
}

template <typename Value>
void writeRgba(Value value, std::uint8_t* out, int width)
{
    for (int x = 0; x < width; ++x, out += 4) {
        out[0] = std::uint8_t(value(x, 16));
        out[1] = std::uint8_t(value(x, 8));
        out[2] = std::uint8_t(value(x, 0));
        out[3] = std::uint8_t(value(x, 24));
    }
}

void rgb(const std::uint32_t* row, const std::uint32_t* above, std::uint8_t* out, int width)
{
    above ? writeRgb(Difference {row, above}, out, width) : writeRgb(Plain {row}, out, width);
}

void rgba(const std::uint32_t* row, const std::uint32_t* above, std::uint8_t* out, int width)
{
    above ? writeRgba(Difference {row, above}, out, width) : writeRgba(Plain {row}, out, width);
}

bool opaque(const std::uint32_t* row, int width)
{
    std::uint32_t common = ~0u;
    for (int x = 0; x < width; ++x)
        common &= row[x];
    return common >> 24 == 0xff;
}

constexpr PixelRows table {rgb, rgba, opaque};

} // namespace

const PixelRows& portablePixelRows()
{
    return table;
}
