// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/CenteringClipView.h"

#include <algorithm>
#include <cmath>

void CenteringClipView::setView(QSize points, double devicePixelRatio)
{
    m_view = points;
    m_devicePixelRatio = devicePixelRatio;
    scrollTo(m_offset);
}

void CenteringClipView::setPicture(QSize pixels)
{
    m_picture = pixels;
    scrollTo(m_offset);
}

void CenteringClipView::magnify(double magnification, QPointF keeping)
{
    const QPointF kept = toPicture(keeping);
    m_magnification = std::clamp(magnification, leastMagnification, mostMagnification);
    scrollTo(kept * m_magnification - keeping);
}

void CenteringClipView::scrollTo(QPointF offset)
{
    const QSizeF most = range();
    m_offset
        = {std::clamp(offset.x(), 0., most.width()), std::clamp(offset.y(), 0., most.height())};
}

QSizeF CenteringClipView::range() const
{
    return (content() - QSizeF(m_view)).expandedTo({0, 0});
}

QPointF CenteringClipView::origin() const
{
    const QSizeF spare = (QSizeF(m_view) - content()).expandedTo({0, 0}) / 2;
    const auto onPixel = [this](double points) {
        return std::round(points * m_devicePixelRatio) / m_devicePixelRatio;
    };
    return {onPixel(spare.width() - m_offset.x()), onPixel(spare.height() - m_offset.y())};
}

QRectF CenteringClipView::toView(const QRectF& pixels) const
{
    return {toView(pixels.topLeft()), pixels.size() * m_magnification};
}

QTransform CenteringClipView::transform() const
{
    const QPointF at = origin();
    return QTransform::fromTranslate(at.x(), at.y()).scale(m_magnification, m_magnification);
}
