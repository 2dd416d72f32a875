// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/kinds/Stroke.h"

#include "editor/Geometry.h"

#include <QPainter>
#include <QPainterPath>

#include <numbers>
#include <span>

namespace {

QRectF around(std::span<const QPointF> points, double margin)
{
    if (points.empty())
        return {};
    QPointF least = points.front(), most = least;
    for (const QPointF& point : points) {
        least = {std::min(least.x(), point.x()), std::min(least.y(), point.y())};
        most = {std::max(most.x(), point.x()), std::max(most.y(), point.y())};
    }
    return grown(QRectF(least, most), margin);
}

/// The parts of the polyline that can leave ink in an area. Where one is cut off, it goes on beyond
/// the reach of its cap, so that the area looks as if all had been drawn.
QPainterPath within(const QRectF& area, const QList<QPointF>& points, double reach)
{
    QPainterPath path;
    bool connected = false;
    for (qsizetype index = 1; index < points.size(); ++index) {
        const std::span segment(&points[index - 1], 2);
        if (!around(segment, reach).intersects(area)) {
            connected = false;
            continue;
        }
        if (!connected)
            path.moveTo(segment[0]);
        path.lineTo(segment[1]);
        connected = true;
    }
    return path;
}

} // namespace

void Stroke::draw(QPainter& painter, const Annotation& it, const QImage&) const
{
    if (it.points.isEmpty())
        return;
    painter.setPen(pen(it));
    painter.setBrush(Qt::NoBrush);
    const QRectF wanted = painter.hasClipping() ? painter.clipBoundingRect() : ink(it);
    if (it.points.size() > 1)
        painter.drawPath(within(wanted, it.points, reach(it)));
    else
        painter.drawPoint(it.points.first());
}

QRectF Stroke::bounds(const Annotation& it) const
{
    return around(it.points, margin(it));
}

QRectF Stroke::ink(const Annotation& it) const
{
    return around(it.points, reach(it));
}

bool Stroke::hit(const Annotation& it, QPointF point, double tolerance) const
{
    for (qsizetype index = 1; index < it.points.size(); ++index)
        if (distance(point, it.points[index - 1], it.points[index]) <= 2 * it.width + tolerance)
            return true;
    return false;
}

void Stroke::begin(Annotation& it, const ToolSettings&, int, double) const
{
    it.points = {it.a};
}

QRectF Stroke::dragTo(Annotation& it, QPointF point, bool) const
{
    it.points.append(point);
    // The end before becomes a join: its cap goes.
    const auto from = std::max<qsizetype>(0, it.points.size() - 2);
    return around(std::span(it.points).subspan(std::size_t(from)), reach(it));
}

bool Stroke::finish(Annotation&) const
{
    return true;
}

double Stroke::reach(const Annotation& it) const
{
    return pen(it).widthF() / 2 * std::numbers::sqrt2 + 1; // The corner of a square cap.
}
