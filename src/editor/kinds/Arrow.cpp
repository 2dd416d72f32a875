// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/kinds/Arrow.h"

#include "editor/Geometry.h"

#include <QPainter>
#include <QPainterPath>

namespace {

QPainterPath outlineOf(const Annotation& it)
{
    const QPointF along = it.b - it.a;
    const double distance = std::max(length(along), 0.001);
    const QPointF unit = along / distance, across(-unit.y(), unit.x());
    const double head = std::min(it.width * 3.2 + 10, distance), half = head * 0.55;
    const QPointF base = it.b - unit * head;

    QPainterPath shaft(it.a);
    shaft.lineTo(it.b - unit * head * 0.8); // Behind the point, which stays sharp.
    QPainterPathStroker stroker(QPen(Qt::black, it.width, Qt::SolidLine, Qt::RoundCap));
    stroker.setCurveThreshold(0.05);
    QPainterPath outline = stroker.createStroke(shaft);
    // Both go round in the same direction, or there would be a hole where they overlap.
    outline.addPolygon(QPolygonF({it.b, base + across * half, base - across * half, it.b}));
    outline.setFillRule(Qt::WindingFill);
    return outline;
}

} // namespace

void Arrow::draw(QPainter& painter, const Annotation& it, const QImage&) const
{
    painter.fillPath(outlineOf(it), it.color); // Shaft and head at once: the colour may be clear.
}

QRectF Arrow::ink(const Annotation& it) const
{
    return grown(outlineOf(it).controlPointRect(), 1);
}
