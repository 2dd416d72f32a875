// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/Annotation.h"

#include "editor/AnnotationKind.h"
#include "editor/Tools.h"

Annotation Annotation::copy() const
{
    Annotation copied = *this;
    copied.blurCache.reset();
    return copied;
}

void Annotation::draw(QPainter& painter, const QImage& base) const
{
    if (const auto* const its = infoOf(kind).kind)
        its->draw(painter, *this, base);
}

QRectF Annotation::bounds() const
{
    const auto* const its = infoOf(kind).kind;
    return its ? its->bounds(*this) : QRectF();
}

QRectF Annotation::ink() const
{
    const auto* const its = infoOf(kind).kind;
    return its ? its->ink(*this) : QRectF();
}

bool Annotation::hit(QPointF point, double tolerance) const
{
    const auto* const its = infoOf(kind).kind;
    return its && its->hit(*this, point, tolerance);
}

void Annotation::move(double dx, double dy)
{
    const QPointF offset(dx, dy);
    a += offset;
    b += offset;
    for (QPointF& point : points)
        point += offset;
}

QList<QPointF> Annotation::handles() const
{
    const auto* const its = infoOf(kind).kind;
    return its ? its->handles(*this) : QList<QPointF>();
}

void Annotation::setHandle(qsizetype index, QPointF to)
{
    if (const auto* const its = infoOf(kind).kind)
        its->setHandle(*this, index, to);
}

bool operator==(const Annotation& one, const Annotation& other)
{
    const auto fields = [](const Annotation& its) {
        return std::tie(its.kind, its.color, its.width, its.a, its.b, its.points, its.text,
            its.fontSize, its.number, its.emoji, its.rotation, its.style, its.centered);
    };
    return fields(one) == fields(other);
}
