// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Theme.h"

#include <QStyleOption>

class QPainter;

/// What is around controls and between them: frames, lines, rows of lists, the focus ring.
namespace FrameStyle {

constexpr int width = 4; ///< Points, around what scrolls: its corners must not stick out.

/// @param ground of what is in the frame
void paintFrame(
    QPainter& painter, const QStyleOption& option, const Theme& theme, const QColor& ground);

void paintItem(QPainter& painter, const QStyleOption& option, const Theme& theme);
QSize itemSize(QSize contents);

void paintSeparator(QPainter& painter, const QStyleOption& option, const Theme& theme);

/// @param radius of the corners of what the ring is around
void paintFocus(QPainter& painter, const QStyleOption& option, const Theme& theme, double radius);

/// Whether the frame is a line, which is painted then.
bool paintLine(QPainter& painter, const QStyleOption& option, const Theme& theme);

} // namespace FrameStyle
