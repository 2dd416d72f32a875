// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "capture/Pixels.h"

#include <algorithm>

namespace {

bool isOfOurs(QImage::Format format)
{
    return format == QImage::Format_RGB32 || format == QImage::Format_ARGB32_Premultiplied;
}

} // namespace

QImage toImage(const Bitmap& bitmap)
{
    const auto format = bitmap.format() == PixelFormat::Rgb32 ? QImage::Format_RGB32
                                                              : QImage::Format_ARGB32_Premultiplied;
    const QSize size = bitmap.size();
    using Pixels = std::shared_ptr<const std::uint32_t>;
    auto* keeper = new Pixels(bitmap.pixels());
    const auto release = [](void* pixels) { delete static_cast<Pixels*>(pixels); };
    return QImage(reinterpret_cast<const uchar*>(keeper->get()), size.width(), size.height(),
        qsizetype(size.width()) * 4, format, release, keeper);
}

QImage samePixels(const QImage& image)
{
    if (!isOfOurs(image.format()))
        return image;
    auto* keeper = new QImage(image);
    const auto release = [](void* kept) { delete static_cast<QImage*>(kept); };
    return QImage(keeper->constBits(), image.width(), image.height(), image.bytesPerLine(),
        image.format(), release, keeper);
}

QImage inOurFormat(const QImage& image)
{
    if (isOfOurs(image.format()))
        return image;
    return image.convertToFormat(
        image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
}

Result<QImage> readImage(RowSource& source)
{
    const auto bitmap = Bitmap::read(source);
    if (!bitmap)
        return bitmap.error();
    return toImage(*bitmap);
}

ImageRows::ImageRows(const QImage& image)
    : m_image(inOurFormat(image))
{
}

PixelFormat ImageRows::format() const
{
    return m_image.format() == QImage::Format_RGB32 ? PixelFormat::Rgb32
                                                    : PixelFormat::Argb32Premultiplied;
}

Result<Rows> ImageRows::rows(int y, int most)
{
    return Rows {reinterpret_cast<const std::uint32_t*>(m_image.constScanLine(y)),
        m_image.bytesPerLine() / 4, m_image.width(), std::min(most, m_image.height() - y)};
}
