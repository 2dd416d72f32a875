// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/kinds/Redact.h"

#include "editor/Geometry.h"

#include <QPainter>

void Redact::draw(QPainter& painter, const Annotation& it, const QImage&) const
{
    // Whole pixels: a half covered one would still tell something.
    painter.fillRect(spanned(it.a, it.b).toAlignedRect(), it.color);
}
