// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/kinds/Segment.h"

#include "editor/Geometry.h"

QRectF Segment::bounds(const Annotation& it) const
{
    return grown(spanned(it.a, it.b), it.width * 3 + 4);
}

bool Segment::hit(const Annotation& it, QPointF point, double tolerance) const
{
    return distance(point, it.a, it.b) <= it.width + tolerance;
}

QList<QPointF> Segment::handles(const Annotation& it) const
{
    return {it.a, it.b};
}

void Segment::setHandle(Annotation& it, qsizetype index, QPointF to) const
{
    (index == 0 ? it.a : it.b) = to;
}

QPointF Segment::regularEnd(const Annotation& it, QPointF point) const
{
    return snapped(it.a, point);
}
