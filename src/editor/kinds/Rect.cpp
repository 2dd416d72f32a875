// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/kinds/Rect.h"

#include "editor/Geometry.h"

#include <QPainter>

void Rect::draw(QPainter& painter, const Annotation& it, const QImage&) const
{
    constexpr double radius = 3;
    painter.setPen(QPen(it.color, it.width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(spanned(it.a, it.b), radius, radius);
}
