// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/PngPalette.h"

#include "base/PixelRows.h"

#include <algorithm>
#include <cstring>

namespace {

// Screens are made of long runs of one colour, so pixels are compared with the one before by
// eights. Where they differ, branches would mostly be guessed wrong: eight are looked up without
// any.
constexpr int stride = 8;

bool allEqual(const std::uint32_t* pixels, std::uint32_t pixel)
{
    std::uint32_t different = 0;
    for (int i = 0; i < stride; ++i)
        different |= pixels[i] ^ pixel;
    return different == 0;
}

} // namespace

PngPalette::PngPalette(std::uint32_t ignored)
    : m_slots(slotCount)
    , m_ignored(ignored)
{
    m_colours.reserve(most);
    // Only colour 0 has its home in slot 0: no empty slot looks like the home of a colour.
    m_slots[0].colour = ~0u;
}

std::size_t PngPalette::home(std::uint32_t colour)
{
    static_assert(slotCount == 1 << 13);
    return colour * 2654435761u >> (32 - 13);
}

std::size_t PngPalette::find(std::uint32_t colour) const
{
    std::size_t slot = home(colour);
    while (m_slots[slot].index >= 0 && m_slots[slot].colour != colour)
        slot = (slot + 1) % slotCount;
    return slot;
}

void PngPalette::insert(std::uint32_t colour)
{
    auto& slot = m_slots[find(colour)];
    if (slot.index >= 0)
        return;
    m_overflowed = m_colours.size() == most;
    if (m_overflowed)
        return;
    slot = {colour, std::int32_t(m_colours.size())};
    m_colours.push_back(colour);
}

void PngPalette::add(const std::uint32_t* row, int width)
{
    int x = 0;
    std::uint32_t last = ~row[0];
    for (; x + stride <= width && !m_overflowed; x += stride) {
        const std::uint32_t* pixels = row + x;
        __builtin_prefetch(pixels + pixelsAhead);
        if (allEqual(pixels, last))
            continue;
        std::uint32_t unknown = 0;
        for (int i = 0; i < stride; ++i) {
            const std::uint32_t colour = pixels[i] | m_ignored;
            unknown |= m_slots[home(colour)].colour ^ colour;
        }
        for (int i = 0; unknown && i < stride && !m_overflowed; ++i)
            insert(pixels[i] | m_ignored);
        last = pixels[stride - 1];
    }
    for (; x < width && !m_overflowed; ++x)
        insert(row[x] | m_ignored);
}

void PngPalette::indices(const std::uint32_t* row, std::uint8_t* out, int width) const
{
    const auto indexOf
        = [this](std::uint32_t pixel) { return m_slots[find(pixel | m_ignored)].index; };
    const std::uint32_t ignored = m_ignored;
    const Slot* slots = m_slots.data();
    int x = 0;
    std::uint32_t last = ~row[0];
    std::int32_t lastIndex = -1;
    for (; x + stride <= width; x += stride) {
        const std::uint32_t* pixels = row + x;
        __builtin_prefetch(pixels + pixelsAhead);
        if (allEqual(pixels, last)) {
            std::memset(out + x, lastIndex, stride);
            continue;
        }
        std::uint32_t elsewhere = 0;
        for (int i = 0; i < stride; ++i) {
            const std::uint32_t colour = pixels[i] | ignored;
            const Slot& slot = slots[home(colour)];
            out[x + i] = std::uint8_t(slot.index);
            elsewhere |= slot.colour ^ colour;
        }
        for (int i = 0; elsewhere && i < stride; ++i)
            out[x + i] = std::uint8_t(indexOf(pixels[i]));
        last = pixels[stride - 1];
        lastIndex = out[x + stride - 1];
    }
    for (; x < width; ++x)
        out[x] = std::uint8_t(indexOf(row[x]));
}
