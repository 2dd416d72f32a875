// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/CardFrame.h"

#include "platform/DrawnShadow.h"

#include <QPainter>
#include <QPixmapCache>

#include <algorithm>
#include <cstring>

using namespace Qt::StringLiterals;

namespace {

constexpr ShadowStyle shadowStyle {32, 10, 1};

/// How far into a card its corner makes a difference to the shadow, in points.
double cornerReach(double radius)
{
    return shadowStyle.blur + radius;
}

/// The smallest card whose corners do not meet has all that the shadow of a larger one consists of.
QSizeF sampleCard(QSizeF card, double radius)
{
    const double side = 2 * cornerReach(radius) + 2;
    return card.boundedTo(QSizeF(side, side));
}

QImage cardShape(QSizeF card, double radius, double scale)
{
    QImage shape((card * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    shape.fill(Qt::transparent);
    QPainter painter(&shape);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawRoundedRect(shape.rect(), radius * scale, radius * scale);
    return shape;
}

/// The shadow around a card, without what the card covers. Painted once for each kind.
QPixmap shadowSample(QSizeF card, double radius, const QColor& colour, double scale)
{
    const QString key = u"card-shadow-%1-%2-%3-%4-%5"_s.arg(colour.rgba(), 8, 16)
                            .arg(radius)
                            .arg(scale)
                            .arg(card.width())
                            .arg(card.height());
    QPixmap sample;
    if (QPixmapCache::find(key, &sample))
        return sample;
    const QImage shape = cardShape(card, radius, scale);
    Bitmap window(shape.size(), PixelFormat::Argb32Premultiplied);
    for (int y = 0; y < shape.height(); ++y)
        std::memcpy(window.row(y), shape.constScanLine(y), std::size_t(shape.width()) * 4);
    ShadowStyle style = shadowStyle;
    style.opacity = colour.alphaF();
    const Bitmap cast = withDrawnShadow(window, scale, style);
    QImage image(cast.size(), QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < image.height(); ++y)
        std::memcpy(image.scanLine(y), cast.row(y), std::size_t(image.width()) * 4);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    painter.drawImage(
        QPointF(CardFrame::shadowMargins().left(), CardFrame::shadowMargins().top()) * scale,
        shape);
    painter.end();
    sample = QPixmap::fromImage(image);
    QPixmapCache::insert(key, sample);
    return sample;
}

} // namespace

QMargins CardFrame::shadowMargins()
{
    const int blur = int(shadowStyle.blur);
    const int offset = int(shadowStyle.offset);
    return {blur, blur - offset, blur, blur + offset};
}

QPainterPath CardFrame::outline(QRectF card)
{
    QPainterPath path;
    path.addRoundedRect(card, Radius::card, Radius::card);
    return path;
}

void CardFrame::paintShadow(QPainter& painter, QRectF card, double radius, const QColor& colour)
{
    // The sample's corners as they are, its middle stretched.
    const double scale = painter.device()->devicePixelRatioF();
    const QPixmap sample = shadowSample(sampleCard(card.size(), radius), radius, colour, scale);
    const QMargins margins = shadowMargins();
    const QRectF outer = card.marginsAdded(margins);
    const double across = std::min(cornerReach(radius), card.width() / 2);
    const double along = std::min(cornerReach(radius), card.height() / 2);
    const double left = margins.left() + across;
    const double top = margins.top() + along;
    const double right = margins.right() + across;
    const double bottom = margins.bottom() + along;
    const double sampleRight = sample.width() / scale - right;
    const double sampleBottom = sample.height() / scale - bottom;
    const double xs[] {0, left, outer.width() - right, outer.width()};
    const double ys[] {0, top, outer.height() - bottom, outer.height()};
    const double sampleXs[] {0, left, sampleRight, sample.width() / scale};
    const double sampleYs[] {0, top, sampleBottom, sample.height() / scale};
    for (int row = 0; row < 3; ++row)
        for (int column = 0; column < 3; ++column) {
            if (row == 1 && column == 1)
                continue;
            const QRectF to(outer.topLeft() + QPointF(xs[column], ys[row]),
                outer.topLeft() + QPointF(xs[column + 1], ys[row + 1]));
            const QRectF from(QPointF(sampleXs[column], sampleYs[row]) * scale,
                QPointF(sampleXs[column + 1], sampleYs[row + 1]) * scale);
            painter.drawPixmap(to, sample, from);
        }
}

void CardFrame::paint(QPainter& painter, QRectF card, const Theme& theme, Ground ground)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    QColor fill = theme.card;
    if (ground == Ground::Blended)
        paintShadow(painter, card, Radius::card, theme.shadow);
    else
        fill.setAlphaF(1);
    painter.fillPath(outline(card), fill);
    constexpr double half = Extent::hairline / 2;
    painter.setPen(QPen(theme.hairline, Extent::hairline));
    painter.drawRoundedRect(
        card.adjusted(half, half, -half, -half), Radius::card - half, Radius::card - half);
    painter.restore();
}
