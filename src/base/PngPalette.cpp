// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/PngPalette.h"

#include <cstring>

namespace {

// How many pixels equal the first one. Screens are made of long runs, so two are compared at a
// time.
int runLength(const std::uint32_t* row, int width)
{
    const std::uint64_t pair = row[0] * 0x1'0000'0001u;
    int length = 1;
    for (; length + 2 <= width; length += 2) {
        std::uint64_t next;
        std::memcpy(&next, row + length, sizeof next);
        if (next != pair)
            break;
    }
    return length + (length < width && row[length] == row[0]);
}

} // namespace

PngPalette::PngPalette(std::uint32_t ignored)
    : m_ignored(ignored)
{
    m_colours.reserve(most);
}

std::size_t PngPalette::find(std::uint32_t colour) const
{
    static_assert(8 * most == 1 << 11);
    std::size_t slot = colour * 2654435761u >> (32 - 11);
    while (m_slots[slot].index >= 0 && m_slots[slot].colour != colour)
        slot = (slot + 1) % m_slots.size();
    return slot;
}

bool PngPalette::insert(std::uint32_t colour)
{
    auto& slot = m_slots[find(colour)];
    if (slot.index >= 0)
        return true;
    if (m_colours.size() == most)
        return false;
    slot = {colour, std::int32_t(m_colours.size())};
    m_colours.push_back(colour);
    return true;
}

void PngPalette::add(const std::uint32_t* row, int width)
{
    for (int x = 0; x < width && !m_overflowed; x += runLength(row + x, width - x))
        m_overflowed = !insert(row[x] | m_ignored);
}

void PngPalette::indices(const std::uint32_t* row, std::uint8_t* out, int width) const
{
    for (int x = 0; x < width;) {
        const int length = runLength(row + x, width - x);
        std::memset(out + x, m_slots[find(row[x] | m_ignored)].index, std::size_t(length));
        x += length;
    }
}
