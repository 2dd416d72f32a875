// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/kinds/Pen.h"

#include "editor/Geometry.h"

#include <QPen>

QPen Pen::pen(const Annotation& it) const
{
    return QPen(it.color, drawnWidth(it.width), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}
