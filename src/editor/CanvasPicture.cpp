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

void CanvasPicture::draw(
    QPainter& painter, const CenteringClipView& view, std::span<const Annotation* const> marks)
{
    const double zoom = view.magnification() * view.devicePixelRatio();
    if (zoom > 1)
        return drawEnlarged(painter, view, marks);
    int halvings = 0;
    while (zoom * (2 << halvings) <= 1)
        ++halvings;
    const double scale = zoom * (1 << halvings); // Of the reduced picture.
    painter.save();
    painter.setTransform(view.transform(), true);
    painter.scale(1 << halvings, 1 << halvings);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, scale != 1);
    painter.drawImage(0, 0, reduced(halvings));
    painter.restore();
}

void CanvasPicture::drawEnlarged(QPainter& painter, const CenteringClipView& view,
    std::span<const Annotation* const> marks) const
{
    painter.save();
    painter.setTransform(view.transform(), true);
    const QRectF wanted
        = painter.hasClipping() ? painter.clipBoundingRect() : QRectF(m_base.rect());
    const bool smooth = view.magnification() * view.devicePixelRatio() < pixelsShow;
    painter.setRenderHint(QPainter::SmoothPixmapTransform, smooth);
    painter.drawImage(0, 0, m_base);
    painter.setClipRect(m_base.rect(), Qt::IntersectClip);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const Annotation* const mark : marks)
        if (mark->ink().intersects(wanted))
            mark->draw(painter, m_base);
    painter.restore();
}
