// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/Bitmap.h"

#include <sys/mman.h>

#include <algorithm>
#include <cstring>
#include <new>

namespace {

constexpr std::size_t hugePage = std::size_t(2) << 20;

std::shared_ptr<std::uint32_t> allocate(std::size_t bytes)
{
    // Aligned by hand: the kernel gives a huge page only to a whole aligned 2 MiB of one mapping.
    const std::size_t length = bytes + hugePage;
    void* mapping = mmap(nullptr, length, PROT_READ | PROT_WRITE,
        MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (mapping == MAP_FAILED)
        throw std::bad_alloc();
    madvise(mapping, length, MADV_HUGEPAGE); // Refused on some systems: then pages stay small.
    const auto address
        = (reinterpret_cast<std::uintptr_t>(mapping) + hugePage - 1) & ~(hugePage - 1);
    return {reinterpret_cast<std::uint32_t*>(address),
        [mapping, length](std::uint32_t*) { munmap(mapping, length); }};
}

} // namespace

Bitmap::Bitmap(QSize size, PixelFormat format)
    : m_pixels(allocate(std::size_t(size.width()) * std::size_t(size.height()) * 4))
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
