// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "capture/Region.h"
#include "capture/Shot.h"
#include "platform/ScreenCapture.h"

#include <optional>

/// The rules of what is captured, over plain data. Points are global points, y up, as in
/// DisplayInfo::points; native rectangles are device pixels of the whole desktop, y down.
namespace Capture {

/// What positions of windows compare by: window to position, 0 the front-most.
using Order = QHash<WindowId, int>;

/// Turns a rectangle in points with y down into one with y up.
/// @param primaryHeight points; 0 when there is no screen.
QRectF appKitRect(QRectF quartz, double primaryHeight);

/// A native rectangle in the points of one display, whose scale holds for all of it: points of
/// displays with different scales do not join.
QRectF toPoints(QRect native, const DisplayInfo& display);

std::optional<DisplayInfo> screen(DisplayId id, const QList<DisplayInfo>& displays);

/// The first display that holds the pointer, else the primary one, if there is any.
std::optional<DisplayInfo> screenUnder(QPoint nativePointer, const QList<DisplayInfo>& displays);

/// The scale of the first display that a native rectangle touches; 2 when it touches none.
double scaleOf(QRect native, const QList<DisplayInfo>& displays);

/// Front first; windows without a position stay behind the others, in the order they came in.
void sortFrontToBack(QList<Window>& windows, const Order& order);

/// The windows that a region selection offers, front first: ordinary, on screen, not ours, wider
/// and taller than 40 points.
QList<Window> regionCandidates(
    QList<Window> windows, const Order& order, const QList<DisplayInfo>& displays);

/// The front-most window of a program: ordinary, on screen, wider than 40 points and of any height.
/// A program whose process is unknown is recognised by its id.
std::optional<Window> frontWindow(QList<Window> windows, const Order& order,
    const Application& application, const QList<DisplayInfo>& displays);

/// The pixels of a frozen image that a selection covers, widened to whole ones.
/// @param selection points of the screen, origin at its bottom left.
/// @param screenSize points.
QRect cropRectangle(QRectF selection, QSizeF screenSize, QSize imageSize);

/// What was selected on a frozen screen, named after the first candidate under its centre, else
/// `otherwise`. Cancelled when the selection lies outside the screen.
/// @param selection points of the screen, origin at its bottom left.
Result<Shot> crop(const FrozenScreen& screen, QRectF selection,
    const QList<Window>& sortedCandidates, const QString& otherwise);

} // namespace Capture
