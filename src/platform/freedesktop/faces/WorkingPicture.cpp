// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/faces/WorkingPicture.h"

namespace {

/// Twice the size, a face of 40 pixels has the 80 that are needed; smaller ones nobody recognises.
constexpr double mostEnlarged = 2;

/// Of the longer side: more takes longer than anybody wants to wait.
constexpr double longest = 2560;

/// How far a face goes on beyond what the detector frames, in heights of that.
constexpr double aboveEyebrows = 0.2, belowMouth = 0.15;

/// Below this there is no room for a face, and none for what the detector does.
constexpr int narrowest = 32;

/// What is seen through is on white, as a viewer shows it.
QImage opaque(const QImage& picture)
{
    if (!picture.hasAlphaChannel())
        return picture;
    QImage flat = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < flat.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(flat.scanLine(y));
        for (int x = 0; x < flat.width(); ++x) {
            const int rest = 255 - qAlpha(row[x]);
            row[x] = qRgb(qRed(row[x]) + rest, qGreen(row[x]) + rest, qBlue(row[x]) + rest);
        }
    }
    return flat;
}

} // namespace

WorkingPicture::WorkingPicture(const QImage& picture)
    : m_size(picture.size())
{
    if (std::min(m_size.width(), m_size.height()) < narrowest)
        return;
    const double factor
        = std::min(mostEnlarged, longest / std::max(m_size.width(), m_size.height()));
    // Grey first where it makes less to scale; the toolkit scales grey pictures as they are.
    const QImage grey = opaque(picture).convertToFormat(QImage::Format_Grayscale8);
    m_grey = grey.scaled((QSizeF(m_size) * factor).toSize().expandedTo({1, 1}),
                     Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                 .convertToFormat(QImage::Format_Grayscale8);
    m_grey.setDevicePixelRatio(1);
}

QRectF WorkingPicture::face(const QRectF& found) const
{
    const double x = double(m_size.width()) / m_grey.width();
    const double y = double(m_size.height()) / m_grey.height();
    const QRectF whole
        = found.adjusted(0, -found.height() * aboveEyebrows, 0, found.height() * belowMouth);
    const QRectF box(whole.x() * x, whole.y() * y, whole.width() * x, whole.height() * y);
    return box & QRectF(QPointF(), QSizeF(m_size));
}
