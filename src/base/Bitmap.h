// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Rows.h"

#include <memory>

/// A picture in memory, its pixels shared between copies.
class Bitmap final {
public:
    Bitmap() = default;
    Bitmap(QSize size, PixelFormat format); ///< Contents undefined until written.

    /// All of a picture, copied.
    static Result<Bitmap> read(RowSource& source);

    bool isNull() const { return !m_pixels; }
    QSize size() const { return m_size; }
    PixelFormat format() const { return m_format; }
    Rows rows() const;
    std::uint32_t* row(int y) { return m_pixels.get() + qsizetype(y) * m_size.width(); }
    const std::uint32_t* row(int y) const { return m_pixels.get() + qsizetype(y) * m_size.width(); }

    /// Keeps the pixels alive for somebody who only borrows their address.
    std::shared_ptr<const std::uint32_t> pixels() const { return m_pixels; }

private:
    std::shared_ptr<std::uint32_t> m_pixels;
    QSize m_size;
    PixelFormat m_format = PixelFormat::Rgb32;
};

/// A bitmap read as a RowSource; lives no longer than its bitmap has to.
class BitmapRows final : public RowSource {
public:
    explicit BitmapRows(Bitmap bitmap)
        : m_bitmap(std::move(bitmap))
    {
    }

    QSize size() const override { return m_bitmap.size(); }
    PixelFormat format() const override { return m_bitmap.format(); }
    Result<Rows> rows(int y, int most) override;

private:
    Bitmap m_bitmap;
};
