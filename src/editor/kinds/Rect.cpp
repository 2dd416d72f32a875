// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/kinds/Rect.h"

#include "editor/Geometry.h"

#include <QPainter>

void Rect::draw(QPainter& painter, const Annotation& it, const QImage&) const
{
    constexpr double radius = 3;
    // Where a side has no length, mitred corners would be spikes.
    painter.setPen(QPen(it.color, drawnWidth(it.width), Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(spanned(it.a, it.b), radius, radius);
}
