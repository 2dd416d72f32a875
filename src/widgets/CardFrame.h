// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Theme.h"

#include <QMargins>
#include <QPainterPath>

class QPainter;

/// The ground that all floating surfaces share: a rounded card, with a hairline and, where windows
/// are blended, translucent and on a soft shadow.
namespace CardFrame {

enum class Ground { Blended, Opaque };

/// Room for the shadow around a card, in points.
QMargins shadowMargins();

QPainterPath outline(QRectF card);

/// @param card in points of the painter's surface; the shadow falls outside of it.
void paint(QPainter& painter, QRectF card, const Theme& theme, Ground ground);

/// The shadow alone, of a card with corners of this radius; nothing where the card is.
void paintShadow(QPainter& painter, QRectF card, double radius, const QColor& colour);

} // namespace CardFrame
