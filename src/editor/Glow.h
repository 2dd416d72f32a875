// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

class LaidText;
class QPainter;

/// Draws light around a text, as of a neon tube: its shape blurred, twice over itself.
/// @param radius of the blur, in the painter's units.
void drawGlow(QPainter& painter, const LaidText& text, const QColor& color, double radius);
