// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/PngPalette.h"

#include "base/PixelRows.h"

#include <cstring>

namespace {

// Screens are made of long runs of one colour, so pixels are compared with the one before by
// sixteens. Where they differ, branches would mostly be guessed wrong: sixteen are looked up
// without any.
constexpr int stride = 16;

bool allEqual(const std::uint32_t* pixels, std::uint32_t pixel)
{
    std::uint32_t different = 0;
    for (int i = 0; i < stride; ++i)
        different |= pixels[i] ^ pixel;
    return different == 0;
}

} // namespace

PngPalette::PngPalette(PixelFormat format)
    : m_slots(slotCount)
    , m_ignored(format == PixelFormat::Rgb32 ? 0xff000000 : 0)
{
    m_colours.reserve(most);
    // Only colour 0 has its home in slot 0: no empty slot looks like the home of a colour.
    m_slots[0].colour = ~0u;
}

inline std::size_t PngPalette::home(std::uint32_t colour)
{
    static_assert(slotCount == 1 << 13);
    return colour * 2654435761u >> (32 - 13);
}

std::uint8_t PngPalette::placeOf(std::uint32_t colour)
{
    std::size_t slot = home(colour);
    while (m_slots[slot].index >= 0 && m_slots[slot].colour != colour)
        slot = (slot + 1) % slotCount;
    if (m_slots[slot].index < 0) {
        m_overflowed = m_colours.size() == most;
        if (m_overflowed)
            return 0;
        m_slots[slot] = {colour, std::int32_t(m_colours.size())};
        m_colours.push_back(colour);
    }
    return std::uint8_t(m_slots[slot].index);
}

void PngPalette::indices(const std::uint32_t* row, std::uint8_t* out, int width)
{
    const std::uint32_t ignored = m_ignored;
    const Slot* slots = m_slots.data();
    int x = 0;
    std::uint32_t last = ~row[0];
    std::uint8_t lastIndex = 0;
    for (; x + stride <= width; x += stride) {
        const std::uint32_t* pixels = row + x;
        __builtin_prefetch(pixels + pixelsAhead);
        if (allEqual(pixels, last)) {
            std::memset(out + x, lastIndex, stride);
            continue;
        }
        std::uint32_t elsewhere = 0;
#pragma GCC unroll 16
        for (int i = 0; i < stride; ++i) {
            const std::uint32_t colour = pixels[i] | ignored;
            const Slot& slot = slots[home(colour)];
            out[x + i] = std::uint8_t(slot.index);
            elsewhere |= slot.colour ^ colour;
        }
        for (int i = 0; elsewhere && i < stride && !m_overflowed; ++i)
            out[x + i] = placeOf(pixels[i] | ignored);
        last = pixels[stride - 1];
        lastIndex = out[x + stride - 1];
    }
    for (; x < width && !m_overflowed; ++x)
        out[x] = placeOf(row[x] | ignored);
}
