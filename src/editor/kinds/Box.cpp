// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/kinds/Box.h"

#include "editor/Geometry.h"

QList<QPointF> Box::handles(const Annotation& it) const
{
    const QRectF rect = spanned(it.a, it.b);
    return {rect.topLeft(), rect.topRight(), rect.bottomRight(), rect.bottomLeft()};
}

void Box::setHandle(Annotation& it, qsizetype index, QPointF to) const
{
    const QRectF rect = withCorner(spanned(it.a, it.b), index, to);
    it.a = rect.topLeft();
    it.b = rect.bottomRight();
}
