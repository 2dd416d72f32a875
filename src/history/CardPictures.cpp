// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "history/CardPictures.h"

#include "widgets/Theme.h"

#include <QPainter>
#include <QPainterPath>

namespace {

constexpr double corner = Radius::chip;

} // namespace

QSizeF CardPictures::fitted(QSizeF points, QSizeF box)
{
    if (points.isEmpty())
        return box;
    const bool fits = points.width() <= box.width() && points.height() <= box.height();
    // Even a line one pixel high shall be seen.
    return (fits ? points : points.scaled(box, Qt::KeepAspectRatio)).expandedTo({2, 2});
}

const QPixmap& CardPictures::make(
    const QString& id, const Thumbnail& thumbnail, QSizeF box, double scale)
{
    const QSize pixels = (fitted(thumbnail.size, box) * scale).toSize();
    auto* picture = new QPixmap(pixels);
    picture->fill(Qt::transparent);
    QPainter painter(picture);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    QPainterPath outline;
    outline.addRoundedRect(QRectF({}, pixels), corner * scale, corner * scale);
    painter.setClipPath(outline);
    // Reduced by the toolkit's averaging; while painting it would only sample.
    painter.drawImage(
        0, 0, thumbnail.image.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    painter.end();
    picture->setDevicePixelRatio(scale);
    const qsizetype bytes = qsizetype(pixels.width()) * pixels.height() * 4;
    m_pictures.insert(id, picture, std::min(bytes, mostBytes));
    return *picture;
}
