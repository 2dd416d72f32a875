// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "overlay/Magnifier.h"

#include "base/Blend.h"
#include "overlay/HudLayout.h"

#include <QPainter>

#include <cstring>

using HudLayout::patchSide;

namespace {

constexpr double cornerRadius = 10; // Points, as all lengths here.
constexpr double borderWidth = 2;
constexpr double markWidth = 1;
constexpr QRgb outside = 0xff141414; // Where the picture has ended.
constexpr QColor hairline(0, 0, 0, 140); // Keeps the light lines apart from a light picture.

QImage blank(QSize size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

QRgb* line(QImage& image, int y)
{
    return reinterpret_cast<QRgb*>(image.scanLine(y));
}

} // namespace

Magnifier::Magnifier(QImage picture, double scale, QColor accent)
    : m_picture(std::move(picture))
    , m_block(HudLayout::blockSide(scale))
    , m_border(HudLayout::pixels(borderWidth, scale) + 1)
    , m_lens(blank(QSize(patchSide, patchSide) * m_block))
{
    const int radius = HudLayout::pixels(cornerRadius, scale);
    m_corner = blank({radius, radius});
    QPainter painter(&m_corner);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::black);
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(QRect(0, 0, 2 * radius, 2 * radius));
    makeFrame(scale, accent);
}

void Magnifier::makeFrame(double scale, QColor accent)
{
    const QRectF lens(QPointF(m_border, m_border), QSizeF(m_lens.size()));
    m_frame = blank(extent(m_lens.rect()).size());
    QPainter painter(&m_frame);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    const auto ring = [&](double distance, double width, QColor colour) {
        const QRectF middle = lens.adjusted(-distance, -distance, distance, distance);
        const double radius = m_corner.width() + distance;
        painter.setPen(QPen(colour, width));
        painter.drawRoundedRect(middle, radius, radius);
    };
    const double width = m_border - 1;
    ring(width + 0.5, 1, hairline);
    ring(width / 2, width, accent);

    painter.setRenderHint(QPainter::Antialiasing, false);
    const int centre = m_border + patchSide / 2 * m_block;
    const QRect block(centre, centre, m_block, m_block);
    const int mark = std::max(1, HudLayout::pixels(markWidth, scale));
    const QRegion outline = QRegion(block) - block.adjusted(mark, mark, -mark, -mark);
    for (const QRect& rect : QRegion(block.adjusted(-1, -1, 1, 1)) - block)
        painter.fillRect(rect, hairline);
    for (const QRect& rect : outline)
        painter.fillRect(rect, Qt::white);
}

void Magnifier::draw(QPainter& painter, QRect lens, QPoint pixel)
{
    fillBlocks(pixel);
    roundCorners();
    painter.drawImage(lens.topLeft(), m_lens);
    painter.drawImage(extent(lens).topLeft(), m_frame);
}

void Magnifier::fillBlocks(QPoint pixel)
{
    const QPoint first = pixel - QPoint(patchSide / 2, patchSide / 2);
    for (int blockY = 0; blockY < patchSide; ++blockY) {
        const int y = first.y() + blockY;
        const auto* const source = y >= 0 && y < m_picture.height()
            ? reinterpret_cast<const QRgb*>(m_picture.constScanLine(y))
            : nullptr;
        QRgb* const row = line(m_lens, blockY * m_block);
        for (int blockX = 0; blockX < patchSide; ++blockX) {
            const int x = first.x() + blockX;
            const bool inside = source && x >= 0 && x < m_picture.width();
            std::fill_n(row + blockX * m_block, m_block, inside ? source[x] | 0xff000000 : outside);
        }
        for (int copy = 1; copy < m_block; ++copy)
            std::memcpy(
                line(m_lens, blockY * m_block + copy), row, std::size_t(m_lens.width()) * 4);
    }
}

void Magnifier::roundCorners()
{
    const int last = m_lens.width() - 1;
    for (int y = 0; y < m_corner.height(); ++y) {
        QRgb* const top = line(m_lens, y);
        QRgb* const bottom = line(m_lens, last - y);
        for (int x = 0; x < m_corner.width(); ++x) {
            const auto part = std::uint32_t(qAlpha(m_corner.pixel(x, y)));
            for (QRgb* const pixel : {top + x, top + last - x, bottom + x, bottom + last - x})
                *pixel = scaled(*pixel, part);
        }
    }
}
