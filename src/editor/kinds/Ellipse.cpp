// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/kinds/Ellipse.h"

#include "editor/Geometry.h"

#include <QPainter>

void Ellipse::draw(QPainter& painter, const Annotation& it, const QImage&) const
{
    painter.setPen(QPen(it.color, drawnWidth(it.width)));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(spanned(it.a, it.b));
}
