// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "overlay/OverlayGeometry.h"

#include <algorithm>

namespace {

constexpr double dragExtent = 4; // Points.
constexpr double smallestWindow = 20; // Points; a window has to exceed it.

/// From one position to another, cut to the extent of the screen.
std::pair<int, int> span(int from, int to, int extent)
{
    const auto [least, most] = std::minmax(from, to);
    const int first = std::clamp(least, 0, extent);
    return {first, std::clamp(most, 0, extent) - first};
}

} // namespace

QRect OverlayGeometry::dragged(QPoint start, QPoint pointer, Shape shape, QSize screen)
{
    if (pointer.x() == screen.width() - 1)
        pointer.rx() = screen.width();
    if (pointer.y() == screen.height() - 1)
        pointer.ry() = screen.height();
    QPoint way = pointer - start;
    if (shape == Shape::Square) {
        const int side = std::max(std::abs(way.x()), std::abs(way.y()));
        way = {way.x() < 0 ? -side : side, way.y() < 0 ? -side : side};
    }
    const auto [x, width] = span(start.x(), start.x() + way.x(), screen.width());
    const auto [y, height] = span(start.y(), start.y() + way.y(), screen.height());
    return {x, y, width, height};
}

bool OverlayGeometry::isDrag(QSize selection, double scale)
{
    return std::max(selection.width(), selection.height()) >= dragExtent * scale;
}

QList<QRect> OverlayGeometry::windowsOn(const FrozenScreen& screen, const QList<QRect>& windows)
{
    const double smallest = smallestWindow * pixelsPerPoint(screen);
    const QPoint origin = screen.display.native.topLeft();
    QList<QRect> parts;
    for (const QRect& window : windows) {
        const QRect part = (window & screen.display.native).translated(-origin);
        if (part.width() > smallest && part.height() > smallest && !parts.contains(part))
            parts.push_back(part);
    }
    return parts;
}

std::optional<QRect> OverlayGeometry::windowAt(QPoint position, const QList<QRect>& windows)
{
    const auto found = std::find_if(windows.begin(), windows.end(),
        [position](const QRect& window) { return window.contains(position); });
    return found == windows.end() ? std::nullopt : std::optional(*found);
}

double OverlayGeometry::pixelsPerPoint(const FrozenScreen& screen)
{
    return screen.image.width() / std::max(screen.display.points.width(), 1.0);
}

QRectF OverlayGeometry::toPoints(QRect selection, const FrozenScreen& screen)
{
    const QSize most = screen.image.size();
    const QSize size = selection.size().expandedTo({1, 1});
    const QPoint corner(std::min(selection.x(), most.width() - size.width()),
        std::min(selection.y(), most.height() - size.height()));
    const double scale = pixelsPerPoint(screen);
    const double fromFoot = most.height() - corner.y() - size.height();
    return QRectF(QPointF(corner.x(), fromFoot) / scale, QSizeF(size) / scale);
}
