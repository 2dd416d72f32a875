// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

/// The distinct pixels of a picture, in the order of their first appearance, as long as they fit
/// into a PNG palette.
class PngPalette final {
public:
    static constexpr std::size_t most = 256;

    /// Bits of `ignored` count as set in every pixel, here and below.
    explicit PngPalette(std::uint32_t ignored);

    /// Gives up at the colour that is one too many.
    void add(const std::uint32_t* row, int width);
    bool overflowed() const { return m_overflowed; }
    std::span<const std::uint32_t> colours() const { return m_colours; }

    /// The place of each pixel, all of which were added: width bytes.
    void indices(const std::uint32_t* row, std::uint8_t* out, int width) const;

private:
    struct Slot {
        std::uint32_t colour = 0;
        std::int32_t index = -1;
    };

    std::size_t find(std::uint32_t colour) const;
    bool insert(std::uint32_t colour);

    std::array<Slot, 8 * most> m_slots; // Sparse, so that a colour is mostly found at first sight.
    std::vector<std::uint32_t> m_colours;
    std::uint32_t m_ignored;
    bool m_overflowed = false;
};
