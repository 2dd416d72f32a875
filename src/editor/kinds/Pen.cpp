// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/kinds/Pen.h"

#include <QPen>

QPen Pen::pen(const Annotation& it) const
{
    return QPen(it.color, it.width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}
