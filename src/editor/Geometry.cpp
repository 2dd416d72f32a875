// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/Geometry.h"

#include <algorithm>
#include <cmath>
#include <numbers>

QRectF spanned(QPointF one, QPointF other)
{
    return QRectF(one, other).normalized();
}

QRectF grown(const QRectF& rect, double by)
{
    return rect.adjusted(-by, -by, by, by);
}

double drawnWidth(double width)
{
    return std::max(width, 1.001);
}

double length(QPointF vector)
{
    return std::hypot(vector.x(), vector.y());
}

double distance(QPointF point, QPointF from, QPointF to)
{
    const QPointF along = to - from;
    const double squaredLength = QPointF::dotProduct(along, along);
    if (squaredLength <= 0)
        return length(point - from);
    const double part = QPointF::dotProduct(point - from, along) / squaredLength;
    return length(point - from - along * std::clamp(part, 0., 1.));
}

QPointF snapped(QPointF fixed, QPointF point)
{
    constexpr double step = std::numbers::pi / 4;
    const QPointF along = point - fixed;
    const double angle = std::round(std::atan2(along.y(), along.x()) / step) * step;
    return fixed + QPointF(std::cos(angle), std::sin(angle)) * length(along);
}

QPointF squared(QPointF fixed, QPointF point)
{
    const QPointF along = point - fixed;
    const double side = std::max(std::abs(along.x()), std::abs(along.y()));
    return fixed + QPointF(std::copysign(side, along.x()), std::copysign(side, along.y()));
}

QRectF withCorner(const QRectF& rect, qsizetype corner, QPointF to)
{
    const bool left = corner == 0 || corner == 3;
    const bool top = corner == 0 || corner == 1;
    return spanned(to, {left ? rect.right() : rect.left(), top ? rect.bottom() : rect.top()});
}
