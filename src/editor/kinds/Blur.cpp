// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/kinds/Blur.h"

#include "editor/Geometry.h"
#include "editor/Pixelation.h"

#include <QPainter>

namespace {

constexpr int leastSide = 2; // Pixels; nothing smaller is pixelated.

const Annotation::BlurCache* pixelated(const Annotation& it, const QImage& base)
{
    const QRect area = spanned(it.a, it.b).toAlignedRect() & base.rect();
    if (area.width() < leastSide || area.height() < leastSide)
        return nullptr;
    const int block = qRound(std::max(it.width * 3, 8.));
    auto& cache = it.blurCache;
    if (!cache || cache->area != area || cache->block != block)
        cache = {area, block, ::pixelated(base, area, block)};
    return &*cache;
}

} // namespace

void Blur::draw(QPainter& painter, const Annotation& it, const QImage& base) const
{
    const auto* const cache = pixelated(it, base);
    if (!cache)
        return;
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
    // Scaling without smoothing, the toolkit may go on for a pixel beyond the image.
    painter.setClipRect(cache->area, Qt::IntersectClip);
    // Onto the very pixels it was made of, or its blocks would be smeared.
    painter.drawImage(cache->area.topLeft(), cache->image);
    painter.restore();
}
