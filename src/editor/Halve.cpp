// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/Halve.h"

#include <cstdint>
#include <vector>

namespace {

/// Of all four channels at once, rounded down.
std::uint32_t average(std::uint32_t one, std::uint32_t other)
{
    return (one & other) + (((one ^ other) & 0xfefefefe) >> 1);
}

} // namespace

void halve(const QImage& from, QImage& to, const QRect& part)
{
    const auto rowOf = [&](int y) {
        return reinterpret_cast<const std::uint32_t*>(
            from.constScanLine(std::min(y, from.height() - 1)));
    };
    const int left = 2 * part.left();
    const int whole = std::min(part.width(), (from.width() - left) / 2); // Pairs of pixels.
    std::vector<std::uint32_t> column(std::size_t(2 * part.width()));
    for (int y = part.top(); y <= part.bottom(); ++y) {
        const std::uint32_t *upper = rowOf(2 * y) + left, *lower = rowOf(2 * y + 1) + left;
        auto* const out = reinterpret_cast<std::uint32_t*>(to.scanLine(y)) + part.left();
        const int pixels = 2 * whole;
        for (int x = 0; x < pixels; ++x) // Simple enough to take several at once.
            column[std::size_t(x)] = average(upper[x], lower[x]);
        for (int x = 0; x < whole; ++x)
            out[x] = average(column[std::size_t(2 * x)], column[std::size_t(2 * x + 1)]);
        if (whole < part.width())
            out[whole] = average(upper[pixels], lower[pixels]);
    }
}
