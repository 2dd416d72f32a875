// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>

/// Plane geometry of annotations. Positions and lengths share one unit, y down.

/// The rectangle between two opposite corners, whichever they are.
QRectF spanned(QPointF one, QPointF other);

/// With each side moved outward.
QRectF grown(const QRectF& rect, double by);

/// The width to draw a stroke of this one with, in pixels of the picture: more than one. A thinner
/// one the toolkit draws line by line, each with an end that changes when another line follows.
double drawnWidth(double width);

double length(QPointF vector);

/// From a point to the nearest point of the segment.
double distance(QPointF point, QPointF from, QPointF to);

/// Turns a point about a fixed one to the nearest multiple of 45°, keeping its distance.
QPointF snapped(QPointF fixed, QPointF point);

/// The corner of the square at a fixed corner, as large as the greater offset of the point and on
/// the same side in each direction.
QPointF squared(QPointF fixed, QPointF point);

/// The rectangle after one corner has come to a point while the opposite one stayed; beyond that
/// one it flips. Corners count clockwise from the top left, from 0.
QRectF withCorner(const QRectF& rect, qsizetype corner, QPointF to);
