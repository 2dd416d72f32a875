// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "capture/Capture.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double smallestExtent = 40; // Points; a window has to exceed it to be offered.

/// In points of the display that shows most of the window; a window nowhere counts pixel by pixel.
QSizeF sizeInPoints(const Window& window, const QList<DisplayInfo>& displays)
{
    const DisplayInfo* display = displayShowingMost(window.frame, displays);
    return QSizeF(window.frame.size()) / (display ? display->scale : 1);
}

bool isOrdinary(const Window& window)
{
    return window.layer == 0 && window.onScreen;
}

} // namespace

QRectF Capture::appKitRect(QRectF quartz, double primaryHeight)
{
    return {quartz.x(), primaryHeight - quartz.bottom(), quartz.width(), quartz.height()};
}

QRectF Capture::toPoints(QRect native, const DisplayInfo& display)
{
    const QPointF inside = QPointF(native.topLeft() - display.native.topLeft()) / display.scale;
    const QSizeF size = QSizeF(native.size()) / display.scale;
    const double fromFoot = display.points.height() - inside.y() - size.height();
    return QRectF(display.points.topLeft() + QPointF(inside.x(), fromFoot), size);
}

std::optional<DisplayInfo> Capture::screen(DisplayId id, const QList<DisplayInfo>& displays)
{
    for (const auto& display : displays)
        if (display.id == id)
            return display;
    return std::nullopt;
}

std::optional<DisplayInfo> Capture::screenUnder(
    QPoint nativePointer, const QList<DisplayInfo>& displays)
{
    for (const auto& display : displays)
        if (display.native.contains(nativePointer))
            return display;
    return displays.isEmpty() ? std::nullopt : std::optional(displays.first());
}

double Capture::scaleOf(QRect native, const QList<DisplayInfo>& displays)
{
    for (const auto& display : displays)
        if (display.native.intersects(native))
            return display.scale;
    return 2;
}

void Capture::sortFrontToBack(QList<Window>& windows, const Order& order)
{
    const auto position = [&order](const Window& window) {
        return order.value(window.id, std::numeric_limits<int>::max());
    };
    std::stable_sort(windows.begin(), windows.end(),
        [&](const Window& a, const Window& b) { return position(a) < position(b); });
}

QList<Window> Capture::regionCandidates(
    QList<Window> windows, const Order& order, const QList<DisplayInfo>& displays)
{
    windows.removeIf([&](const Window& window) {
        const QSizeF size = sizeInPoints(window, displays);
        return !isOrdinary(window) || window.application.id == ownApplicationId
            || size.width() <= smallestExtent || size.height() <= smallestExtent;
    });
    sortFrontToBack(windows, order);
    return windows;
}

std::optional<Window> Capture::frontWindow(QList<Window> windows, const Order& order,
    const Application& application, const QList<DisplayInfo>& displays)
{
    const auto isOfApplication = [&application](const Window& window) {
        return application.processId ? window.application.processId == application.processId
                                     : window.application.id == application.id;
    };
    windows.removeIf([&](const Window& window) {
        return !isOrdinary(window) || !isOfApplication(window)
            || sizeInPoints(window, displays).width() <= smallestExtent;
    });
    sortFrontToBack(windows, order);
    return windows.isEmpty() ? std::nullopt : std::optional(windows.first());
}

QRect Capture::cropRectangle(QRectF selection, QSizeF screenSize, QSize imageSize)
{
    const double sx = imageSize.width() / screenSize.width();
    const double sy = imageSize.height() / screenSize.height();
    const double left = sx * selection.left(), right = sx * selection.right();
    const double top = sy * (screenSize.height() - selection.bottom());
    const double bottom = sy * (screenSize.height() - selection.top());
    // What is a whole pixel but for the rounding of a fractional scale does not widen the crop.
    constexpr double rounding = 1e-6;
    const QPoint first(int(std::floor(left + rounding)), int(std::floor(top + rounding)));
    const QPoint end(int(std::ceil(right - rounding)), int(std::ceil(bottom - rounding)));
    return QRect(first, end - QPoint(1, 1));
}

Result<Shot> Capture::crop(const FrozenScreen& screen, QRectF selection,
    const QList<Window>& sortedCandidates, const QString& otherwise)
{
    const QSize pixels = screen.image.size();
    const QSizeF points = screen.display.points.size();
    const QRect rect = cropRectangle(selection, points, pixels) & QRect({}, pixels);
    if (rect.isEmpty())
        return Error::cancelled();

    const QPoint centre = screen.display.native.topLeft() + rect.center();
    const auto under = std::find_if(sortedCandidates.begin(), sortedCandidates.end(),
        [centre](const Window& window) { return window.frame.contains(centre); });
    const QString app = under == sortedCandidates.end() ? otherwise : under->application.name;
    return Shot {screen.image.copy(rect), pixels.width() / points.width(), app,
        selection.translated(screen.display.points.topLeft())};
}
