// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/kinds/Line.h"

#include "editor/Geometry.h"

#include <QPainter>

void Line::draw(QPainter& painter, const Annotation& it, const QImage&) const
{
    painter.setPen(QPen(it.color, drawnWidth(it.width), Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(it.a, it.b);
}
