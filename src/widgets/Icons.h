// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

class QPainter;

/// The one set of symbols that all surfaces use, known by names like "doc.on.doc". Crisp at every
/// size and scale, in any colour. A name that is not known is drawn as a question mark.
namespace Icons {

bool has(const QString& symbol);

/// @param size in points; the symbol fills it but for a small margin.
QPixmap pixmap(const QString& symbol, int size, const QColor& colour, double scale);

/// Centred in a box, of the given size in points.
void paint(QPainter& painter, const QString& symbol, QRectF box, int size, const QColor& colour);

/// For menus and buttons of the toolkit; dimmed by itself where they are disabled.
/// @param active the colour on a highlighted row, if that is another
QIcon icon(const QString& symbol, const QColor& colour, const QColor& active = {});

} // namespace Icons
