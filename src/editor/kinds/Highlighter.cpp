// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/kinds/Highlighter.h"

#include "editor/Colors.h"

#include <QPen>

QPen Highlighter::pen(const Annotation& it) const
{
    return QPen(Colors::withAlpha(it.color, 0.4), it.width * 4 + 6, Qt::SolidLine, Qt::SquareCap,
        Qt::RoundJoin);
}
