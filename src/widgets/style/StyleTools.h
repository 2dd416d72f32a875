// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Theme.h"

#include <QStyleOption>

class QPainter;

/// What all families of controls of the house style are painted with.
namespace StyleTools {

/// Saves the painter, and paints smoothly and as pale as the state asks for, until it goes.
class Stroke final {
public:
    Stroke(QPainter& painter, QStyle::State state);
    ~Stroke();
    Stroke(const Stroke&) = delete;
    Stroke& operator=(const Stroke&) = delete;

private:
    QPainter& m_painter;
};

bool has(QStyle::State state, QStyle::StateFlag flag);

/// A rounded ground, with a line just inside its edge where a colour for that is given.
void paintBox(QPainter& painter, QRectF box, double radius, const QColor& fill,
    const QColor& line = {}, double width = Extent::hairline);

/// How a control that can be pressed is filled.
/// @param rest the fill while nothing happens to it
QColor fill(const Theme& theme, QStyle::State state, const QColor& rest);

/// Where something of this size goes: vertically centred, at the left or right edge of a box by the
/// direction of reading.
QRect atStart(const QStyleOption& option, QRect box, int width);
QRect atEnd(const QStyleOption& option, QRect box, int width);

} // namespace StyleTools
