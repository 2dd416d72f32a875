// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"

#include <QSize>

#include <cstdint>

/// How one pixel, a native 32-bit word 0xAARRGGBB, is read.
enum class PixelFormat {
    Rgb32, ///< Opaque; the top byte holds anything.
    Argb32Premultiplied, ///< Colours already multiplied by alpha.
};

/// Some whole rows of a picture, borrowed.
struct Rows {
    const std::uint32_t* pixels = nullptr;
    qsizetype pitch = 0; ///< Words from one row to the next.
    int width = 0; ///< Pixels in a row.
    int count = 0; ///< Rows.

    const std::uint32_t* row(int index) const { return pixels + index * pitch; }
};

/// A picture that is read in horizontal strips, so that whoever writes it needs no full-size copy.
/// The picture does not change while it is read; any order of reading is allowed, downwards is
/// fast.
class RowSource {
public:
    virtual ~RowSource() = default;

    virtual QSize size() const = 0; ///< Pixels, at least 1 by 1.
    virtual PixelFormat format() const = 0;

    /// Rows from y on: at least one, at most `most`, valid until the next call. Fails when the
    /// picture is gone, for example with the connection to the display.
    virtual Result<Rows> rows(int y, int most) = 0;
};
