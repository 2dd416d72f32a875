// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>
#include <QString>

class QPainter;

/// Emoji as pictures, in the size that is asked for and in colour or, for what is not reached yet,
/// without.
namespace Emoji {

enum class Look { Full, Faded };

/// In the middle of a box. @param size of the emoji in points.
void paint(QPainter& painter, const QString& emoji, QRectF box, int size, Look look = Look::Full);

} // namespace Emoji
