// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Rows.h"

#include <cstdint>
#include <span>
#include <vector>

/// The distinct pixels of a picture, in the order of their first appearance, as long as they fit
/// into a PNG palette.
class PngPalette final {
public:
    static constexpr std::size_t most = 256;

    explicit PngPalette(PixelFormat format);

    /// The place of each pixel, new colours being added: width bytes, which mean nothing once there
    /// was a colour too many.
    void indices(const std::uint32_t* row, std::uint8_t* out, int width);
    bool overflowed() const { return m_overflowed; }
    std::span<const std::uint32_t> colours() const { return m_colours; }

private:
    struct Slot {
        std::uint32_t colour = 0;
        std::int32_t index = -1;
    };
    // Sparse, so that hardly any colour is found elsewhere than at home.
    static constexpr std::size_t slotCount = 32 * most;

    static std::size_t home(std::uint32_t colour);
    std::uint8_t placeOf(std::uint32_t colour);

    std::vector<Slot> m_slots;
    std::vector<std::uint32_t> m_colours;
    std::uint32_t m_ignored; // Bits that count as set in every pixel.
    bool m_overflowed = false;
};
