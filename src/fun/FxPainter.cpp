// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "fun/FxPainter.h"

#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

#include <cmath>
#include <numbers>

namespace {

constexpr int glowSide = 64; ///< Pixels; larger ones are stretched, which a glow does not show.
constexpr int smallestPicture = 96; ///< Pixels of the longer side.
constexpr double mostSmoothed = 500'000; ///< Pixels.
constexpr double pictureCorner = 0.035; ///< Radius, of the shorter side.

/// Every pixel the mean of four.
QImage halved(const QImage& image)
{
    QImage half(std::max(1, image.width() / 2), std::max(1, image.height() / 2), image.format());
    for (int y = 0; y < half.height(); ++y) {
        const auto* const above = reinterpret_cast<const quint32*>(image.constScanLine(2 * y));
        const auto* const below = reinterpret_cast<const quint32*>(
            image.constScanLine(std::min(2 * y + 1, image.height() - 1)));
        auto* const line = reinterpret_cast<quint32*>(half.scanLine(y));
        const int last = image.width() - 1;
        for (int x = 0; x < half.width(); ++x) {
            const int left = 2 * x, right = std::min(2 * x + 1, last);
            // Two of the four parts at a time; each has room for the sum of four bytes.
            constexpr quint32 mask = 0x00ff00ff;
            const quint32 even = (above[left] & mask) + (above[right] & mask) + (below[left] & mask)
                + (below[right] & mask);
            const quint32 odd = ((above[left] >> 8) & mask) + ((above[right] >> 8) & mask)
                + ((below[left] >> 8) & mask) + ((below[right] >> 8) & mask);
            line[x] = ((even >> 2) & mask) | (((odd >> 2) & mask) << 8);
        }
    }
    return half;
}

/// With corners that are round when it has become small enough to tell.
QImage rounded(const QImage& image)
{
    QImage result = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const double radius = pictureCorner * std::min(image.width(), image.height());
    QPainterPath corners;
    corners.addRect(result.rect());
    corners.addRoundedRect(result.rect(), radius, radius);
    QPainter painter(&result);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setCompositionMode(QPainter::CompositionMode_Clear);
    painter.fillPath(corners, Qt::black);
    return result;
}

QPolygonF unitStar()
{
    QPainterPath path;
    constexpr double waist = 0.1; // Where the sides of two rays meet, on the way from the middle.
    path.moveTo(0, -1);
    for (int ray = 1; ray <= 4; ++ray) {
        const double angle = ray * std::numbers::pi / 2 - std::numbers::pi / 2;
        const double between = angle - std::numbers::pi / 4;
        path.quadTo({waist * std::cos(between), waist * std::sin(between)},
            {std::cos(angle), std::sin(angle)});
    }
    return path.toFillPolygon(QTransform::fromScale(100, 100));
}

QPainterPath curl(QSizeF size)
{
    constexpr int waves = 3;
    const double step = size.width() / waves;
    QPainterPath path({-size.width() / 2, 0});
    for (int wave = 0; wave < waves; ++wave) {
        const double x = -size.width() / 2 + wave * step;
        const double lift = wave % 2 ? size.height() : -size.height();
        path.quadTo(x + step / 2, lift, x + step, 0);
    }
    return path;
}

} // namespace

FxPainter::FxPainter(const QImage& picture)
    : m_star(unitStar())
{
    if (picture.isNull())
        return;
    m_pictures.push_back(rounded(picture));
    while (std::max(m_pictures.back().width(), m_pictures.back().height()) > smallestPicture)
        m_pictures.push_back(halved(m_pictures.back()));
}

void FxPainter::paint(QPainter& painter, const FxSprites& sprites)
{
    painter.setPen(Qt::NoPen);
    for (const auto& sprite : sprites)
        paint(painter, sprite);
}

void FxPainter::paint(QPainter& painter, const FxSprite& sprite)
{
    using Shape = FxSprite::Shape;
    const QColor colour = QColor::fromRgba(sprite.colour);
    const QRectF box(QPointF(-sprite.size.width() / 2, -sprite.size.height() / 2), sprite.size);
    if (sprite.shape == Shape::Square || sprite.shape == Shape::Ground) {
        if (painter.testRenderHint(QPainter::Antialiasing)) // To set what is set costs as well.
            painter.setRenderHint(QPainter::Antialiasing, false);
        painter.setCompositionMode(sprite.shape == Shape::Ground
                ? QPainter::CompositionMode_Source
                : QPainter::CompositionMode_SourceOver);
        return painter.fillRect(sprite.area(), colour);
    }
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    if (sprite.shape == Shape::Picture)
        return paintPicture(painter, sprite);
    if (sprite.shape == Shape::Glow) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.setOpacity(qAlpha(sprite.colour) / 255.0);
        painter.drawImage(box.translated(sprite.centre), glow(sprite.colour | 0xff000000));
        return painter.setOpacity(1);
    }

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(sprite.centre);
    painter.rotate(sprite.turn * 180 / std::numbers::pi);
    painter.setBrush(colour);
    const QPen line(colour, sprite.thickness, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    switch (sprite.shape) {
    case Shape::Slip:
        painter.drawRect(box);
        break;
    case Shape::Disc:
        painter.drawEllipse(box);
        break;
    case Shape::Star:
        painter.scale(sprite.size.width() / 200, sprite.size.height() / 200);
        painter.drawPolygon(m_star);
        break;
    case Shape::Curl:
        painter.strokePath(curl(sprite.size), line);
        break;
    case Shape::Ring:
        painter.setBrush(Qt::NoBrush);
        painter.setPen(line);
        painter.drawEllipse(box);
        break;
    case Shape::Shade: {
        painter.setBrush(Qt::NoBrush);
        for (double away = 0.5; away < sprite.thickness; away += 1) {
            const double left = 1 - away / sprite.thickness;
            painter.setPen(QColor::fromRgba(faded(sprite.colour, left * left * 0.6)));
            painter.drawRoundedRect(box.adjusted(-away, -away, away, away), 4 + away, 4 + away);
        }
        break;
    }
    default:
        break;
    }
    painter.restore();
}

void FxPainter::paintPicture(QPainter& painter, const FxSprite& sprite)
{
    if (m_pictures.empty())
        return;
    const double wanted = sprite.size.width() * painter.device()->devicePixelRatioF();
    std::size_t level = 0;
    while (level + 1 < m_pictures.size() && m_pictures[level + 1].width() >= wanted)
        ++level;
    // While it is large it moves too fast for its pixels to be seen.
    const double pixels = wanted * wanted * sprite.size.height() / sprite.size.width();
    painter.setRenderHint(QPainter::SmoothPixmapTransform, pixels < mostSmoothed);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setOpacity(qAlpha(sprite.colour) / 255.0);
    painter.drawImage(sprite.area(), m_pictures[level]);
    painter.setOpacity(1);
}

const QImage& FxPainter::glow(QRgb colour)
{
    QImage& image = m_glows[colour];
    if (!image.isNull())
        return image;
    image = QImage(glowSide, glowSide, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QRadialGradient gradient(QPointF(glowSide, glowSide) / 2, glowSide / 2.0);
    gradient.setColorAt(0, QColor::fromRgba(colour));
    gradient.setColorAt(0.35, QColor::fromRgba(faded(colour, 0.42)));
    gradient.setColorAt(0.7, QColor::fromRgba(faded(colour, 0.1)));
    gradient.setColorAt(1, QColor::fromRgba(faded(colour, 0)));
    QPainter painter(&image);
    painter.fillRect(image.rect(), gradient);
    return image;
}
