// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "fun/Emoji.h"

#include <QFont>
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QPixmapCache>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr double fadedOpacity = 0.45;
constexpr double inEm = 0.84; // Of a letter's size, so that emoji of all fonts fit.

QImage drawn(const QString& emoji, int pixels)
{
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QFont font;
    font.setFamilies(
        {u"Noto Color Emoji"_s, font.family()}); // Others have some in black and white.
    font.setPixelSize(int(pixels * inEm));
    QPainter painter(&image);
    painter.setFont(font);
    const QFontMetricsF metrics(font);
    const double width = metrics.horizontalAdvance(emoji);
    const double scale = std::min(1.0, pixels / std::max(width, 1.0));
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.translate(pixels / 2.0, pixels / 2.0);
    painter.scale(scale, scale);
    painter.drawText(QPointF(-width / 2, (metrics.ascent() - metrics.descent()) / 2), emoji);
    return image;
}

QImage faded(const QImage& image)
{
    QImage grey = image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < grey.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(grey.scanLine(y));
        for (int x = 0; x < grey.width(); ++x) {
            const int level = qGray(row[x]);
            row[x] = qRgba(level, level, level, int(qAlpha(row[x]) * fadedOpacity));
        }
    }
    return grey;
}

} // namespace

void Emoji::paint(QPainter& painter, const QString& emoji, QRectF box, int size, Look look)
{
    const double scale = painter.device()->devicePixelRatioF();
    const int pixels = int(std::lround(size * scale));
    const QString key = u"emoji-%1-%2-%3"_s.arg(emoji).arg(pixels).arg(int(look));
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture)) {
        const QImage image = drawn(emoji, pixels);
        picture = QPixmap::fromImage(look == Look::Faded ? faded(image) : image);
        QPixmapCache::insert(key, picture);
    }
    picture.setDevicePixelRatio(scale);
    const QPointF corner = box.center() - QPointF(size, size) / 2;
    const auto whole = [scale](double at) { return std::round(at * scale) / scale; };
    painter.drawPixmap(QPointF(whole(corner.x()), whole(corner.y())), picture);
}
