// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/AnnotationKind.h"

#include "editor/Geometry.h"

namespace {

constexpr double clickDistance = 3; // A drag of no more than this is a click.

} // namespace

QRectF AnnotationKind::bounds(const Annotation& it) const
{
    return grown(spanned(it.a, it.b), it.width * 0.5 + 2);
}

bool AnnotationKind::hit(const Annotation& it, QPointF point, double tolerance) const
{
    return grown(bounds(it), tolerance).contains(point);
}

QList<QPointF> AnnotationKind::handles(const Annotation&) const
{
    return {};
}

void AnnotationKind::setHandle(Annotation&, qsizetype, QPointF) const { }

void AnnotationKind::begin(Annotation&, const ToolSettings&, int, double) const { }

QRectF AnnotationKind::dragTo(Annotation& it, QPointF point, bool regular) const
{
    const QRectF before = ink(it);
    it.b = regular ? regularEnd(it, point) : point;
    return before | ink(it);
}

bool AnnotationKind::finish(Annotation& it) const
{
    return length(it.b - it.a) > clickDistance;
}

QPointF AnnotationKind::regularEnd(const Annotation& it, QPointF point) const
{
    return squared(it.a, point);
}
