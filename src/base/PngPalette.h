// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

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
    // Sparse, so that hardly any colour is found elsewhere than at home.
    static constexpr std::size_t slotCount = 32 * most;

    static std::size_t home(std::uint32_t colour);
    std::size_t find(std::uint32_t colour) const;
    void insert(std::uint32_t colour);

    std::vector<Slot> m_slots;
    std::vector<std::uint32_t> m_colours;
    std::uint32_t m_ignored;
    bool m_overflowed = false;
};
