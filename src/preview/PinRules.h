// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QPoint>
#include <QRectF>

#include <Qt>

/// What a pin makes of wheel and mouse. Lengths are points, y down; a frame is where the picture is
/// on the desktop.
namespace PinRules {

constexpr double leastZoom = 0.1;
constexpr double mostZoom = 6;
constexpr double leastOpacity = 0.2;

double clampedZoom(double zoom);

/// At which a new pin is no larger than its capture, nor than 60 % of the screen either way.
/// @param visible the main screen without its panels
double initialZoom(QSizeF image, QSizeF visible);

enum class Wheel { Nothing, Enlarge, Reduce, MoreOpaque, LessOpaque };

/// One step for an event, whatever its size. Where a modifier asks for opacity, the axis does not
/// matter: with Alt held the toolkit turns the wheel sideways.
Wheel wheelStep(QPoint delta, Qt::KeyboardModifiers modifiers);

double zoomAfter(double zoom, Wheel step);
double opacityAfter(double opacity, Wheel step);

/// The frame at another zoom; its top left corner stays.
QRectF zoomed(QRectF frame, QSizeF image, double zoom);

/// The edges that are dragged from a position in a frame of this size; none in its middle.
Qt::Edges edgesAt(QPointF position, QSizeF frame);

/// A frame with these edges dragged: its proportions and the opposite edges stay.
QRectF resized(QRectF frame, Qt::Edges edges, QPointF drag, QSizeF image);

/// The frame, moved so that enough of it is on a screen to take hold of it.
QRectF reachable(QRectF frame, const QList<QRect>& screens);

} // namespace PinRules
