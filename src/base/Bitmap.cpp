// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/Bitmap.h"

#include "base/PixelMemory.h"

#include <algorithm>
#include <cstring>

Bitmap::Bitmap(QSize size, PixelFormat format)
    : m_pixels(
        PixelMemory::shared().take(std::size_t(size.width()) * std::size_t(size.height()) * 4))
    , m_size(size)
    , m_format(format)
{
}

Result<Bitmap> Bitmap::read(RowSource& source)
{
    Bitmap bitmap(source.size(), source.format());
    for (int y = 0; y < bitmap.size().height();) {
        const auto rows = source.rows(y, bitmap.size().height() - y);
        if (!rows)
            return rows.error();
        for (int i = 0; i < rows->count; ++i)
            std::memcpy(bitmap.row(y + i), rows->row(i), std::size_t(rows->width) * 4);
        y += rows->count;
    }
    return bitmap;
}

Rows Bitmap::rows() const
{
    return {m_pixels.get(), m_size.width(), m_size.width(), m_size.height()};
}

Result<Rows> BitmapRows::rows(int y, int most)
{
    return Rows {std::as_const(m_bitmap).row(y), m_bitmap.size().width(), m_bitmap.size().width(),
        std::min(most, m_bitmap.size().height() - y)};
}
