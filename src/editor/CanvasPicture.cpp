// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/CanvasPicture.h"

#include "editor/Annotation.h"
#include "editor/Halve.h"

#include <QPainter>

namespace {

constexpr double pixelsShow = 2; // From this magnification on, pixels are squares.

/// The pixels of the half size that pixels of the full size count for.
QRect halfOf(const QRect& rect)
{
    return {QPoint(rect.left() / 2, rect.top() / 2), QPoint(rect.right() / 2, rect.bottom() / 2)};
}

} // namespace

void CanvasPicture::update(
    const QImage& base, std::span<const Annotation* const> marks, const QRegion& damage)
{
    QRegion changed = damage & base.rect();
    if (base.cacheKey() != m_base.cacheKey()) {
        m_base = m_full = base;
        m_halves.clear();
        changed = base.rect();
    }
    if (changed.isEmpty())
        return;
    QPainter painter(&m_full);
    painter.setClipRegion(changed);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    for (const QRect& rect : changed)
        painter.drawImage(rect, m_base, rect);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const Annotation* const mark : marks)
        if (changed.intersects(mark->ink().toAlignedRect()))
            mark->draw(painter, m_base);
    for (Half& half : m_halves)
        half.stale += changed;
}

const QImage& CanvasPicture::reduced(int halvings)
{
    m_halves.resize(std::max(m_halves.size(), std::size_t(halvings)));
    const QImage* larger = &m_full;
    for (int step = 0; step < halvings; ++step) {
        Half& half = m_halves[std::size_t(step)];
        if (half.image.isNull()) {
            half.image = QImage((larger->size() + QSize(1, 1)) / 2, larger->format());
            half.stale = m_full.rect();
        }
        for (QRect rect : std::exchange(half.stale, {})) {
            for (int above = 0; above <= step; ++above)
                rect = halfOf(rect);
            halve(*larger, half.image, rect);
        }
        larger = &half.image;
    }
    return *larger;
}

void CanvasPicture::draw(QPainter& painter, const CenteringClipView& view,
    std::span<const Annotation* const> marks, Detail detail)
{
    const double zoom = view.magnification() * view.devicePixelRatio();
    painter.save();
    // Scaling without smoothing, the toolkit may go on for a pixel beyond the image.
    const QRect inside = view.toView(QRectF(QPointF(), m_full.size())).toAlignedRect();
    painter.setClipRect(inside, Qt::IntersectClip);
    painter.setTransform(view.transform(), true);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, zoom != 1 && zoom < pixelsShow);
    if (zoom <= 1)
        drawReduced(painter, zoom);
    else if (detail == Detail::Sharp)
        drawSharp(painter, marks);
    else
        painter.drawImage(0, 0, m_full);
    painter.restore();
}

void CanvasPicture::drawReduced(QPainter& painter, double zoom)
{
    int halvings = 0;
    while (zoom * (2 << halvings) <= 1)
        ++halvings;
    if (zoom * (1 << halvings) == 1) // Pixel by pixel.
        painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
    painter.scale(1 << halvings, 1 << halvings);
    painter.drawImage(0, 0, reduced(halvings));
}

void CanvasPicture::drawSharp(QPainter& painter, std::span<const Annotation* const> marks) const
{
    const QRectF wanted
        = painter.hasClipping() ? painter.clipBoundingRect() : QRectF(m_base.rect());
    painter.drawImage(0, 0, m_base);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const Annotation* const mark : marks)
        if (mark->ink().intersects(wanted))
            mark->draw(painter, m_base);
}
