// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QGuiApplication>
#include <QMenu>
#include <QStyle>
#include <QWidget>

// What a surface places by itself is written from left to right. These say where that lies for
// those who read the other way. Layouts turn by themselves, but not their margins; text goes by its
// own letters, which may be those of another language.

/// Where lines of text begin.
inline Qt::Alignment startSide(Qt::LayoutDirection direction = QGuiApplication::layoutDirection())
{
    return QStyle::visualAlignment(direction, Qt::AlignLeft);
}

/// Where they end.
inline Qt::Alignment endSide(Qt::LayoutDirection direction = QGuiApplication::layoutDirection())
{
    return QStyle::visualAlignment(direction, Qt::AlignRight);
}

/// @param box points of the widget
inline QRectF mirrored(QRectF box, const QWidget& in)
{
    if (in.isRightToLeft())
        box.moveLeft(in.width() - box.right());
    return box;
}

inline QMargins mirrored(const QMargins& margins, const QWidget& in)
{
    return in.isRightToLeft()
        ? QMargins(margins.right(), margins.top(), margins.left(), margins.bottom())
        : margins;
}

/// Where a menu opens below a control, their edges in line at the beginning. Global points.
inline QPoint placeBelow(const QWidget& control, const QMenu& menu)
{
    const int left = control.isRightToLeft() ? control.width() - menu.sizeHint().width() : 0;
    return control.mapToGlobal(QPoint(left, control.height()));
}
