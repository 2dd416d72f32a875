// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>
#include <QString>

class QColor;
class QPainter;

/// Emoji as drawings that are sharp at any size, for those that the editor offers. Others, and
/// short texts, are set in type.
namespace EmojiArt {

bool isDrawn(const QString& emoji); ///< Whether there is a drawing of it.

/// Draws it about the painter's origin.
/// @param side of the square that a drawing fills; type is as high.
/// @param color of a text.
void draw(QPainter& painter, const QString& emoji, double side, const QColor& color);

QRectF rect(const QString& emoji, double side); ///< Contains all that is drawn.

} // namespace EmojiArt
