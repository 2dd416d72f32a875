// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "capture/Region.h"

#include <optional>

/// The rules of a selection. Rectangles are device pixels of one screen, y down from its top left
/// corner, and so are positions: a pointer is at the pixel that its hot spot is in.
namespace OverlayGeometry {

enum class Shape { Free, Square };

/// What a drag spans, cut to the screen; empty where it has no extent in one direction. A square is
/// as large as the longer side and grows from the start towards the pointer. A pointer on the last
/// pixel of the screen means its edge, as it can go no farther.
QRect dragged(QPoint start, QPoint pointer, Shape shape, QSize screen);

/// Whether a release ends a drag, 4 points or more in one direction, or was a click.
bool isDrag(QSize selection, double scale);

/// The parts of windows on one screen, those of no more than 20 points in one direction and those
/// exactly behind another left out.
/// @param windows device pixels of the whole desktop; the order is kept.
QList<QRect> windowsOn(const FrozenScreen& screen, const QList<QRect>& windows);

/// The first window at a position.
std::optional<QRect> windowAt(QPoint position, const QList<QRect>& windows);

/// Device pixels per point.
double pixelsPerPoint(const FrozenScreen& screen);

/// A selection, at least one pixel of it, in points of its screen, y up.
QRectF toPoints(QRect selection, const FrozenScreen& screen);

} // namespace OverlayGeometry
