// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "preview/PinPicture.h"

namespace {

constexpr int countable = 2; ///< From this enlargement on pixels are shown as squares.
constexpr qint64 mostKept = 16'000'000; ///< Pixels of a size that is kept.

} // namespace

bool PinPicture::isKept(QSize pixels) const
{
    return pixels.width() < countable * m_image.width()
        && qint64(pixels.width()) * pixels.height() <= mostKept;
}

QBrush PinPicture::brush(QSize pixels)
{
    if (pixels == m_image.size())
        return QBrush(m_image);
    if (!isKept(pixels)) {
        QBrush brush(m_image);
        brush.setTransform(QTransform::fromScale(
            double(pixels.width()) / m_image.width(), double(pixels.height()) / m_image.height()));
        return brush;
    }
    if (m_scaled.size() != pixels) {
        const QSize half = m_image.size() / 2;
        const bool small = pixels.width() * 2 < half.width() && pixels.height() * 2 < half.height();
        if (small && m_half.isNull())
            m_half = m_image.scaled(half, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        m_scaled = (small ? m_half : m_image)
                       .scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    return QBrush(m_scaled);
}
