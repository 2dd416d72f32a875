// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "preview/PinRules.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double shareOfScreen = 0.6;
constexpr double zoomStep = 1.06;
constexpr int opacitySteps = 20; ///< From 0 to 1.
constexpr double grip = 6; ///< How near to an edge it is taken hold of.
constexpr double cornerGrip = 16; ///< The same along the other edge.
constexpr double leastWithEdges = 3 * cornerGrip; ///< Smaller frames have their last corner only.
constexpr double hold = 24; ///< What has to stay on a screen, either way.

} // namespace

double PinRules::clampedZoom(double zoom)
{
    return std::clamp(zoom, leastZoom, mostZoom);
}

double PinRules::initialZoom(QSizeF image, QSizeF visible)
{
    const double zoom = std::min({visible.width() * shareOfScreen / image.width(),
        visible.height() * shareOfScreen / image.height(), 1.0});
    return clampedZoom(zoom);
}

PinRules::Wheel PinRules::wheelStep(QPoint delta, Qt::KeyboardModifiers modifiers)
{
    const bool fades = modifiers & (Qt::AltModifier | Qt::ControlModifier);
    const int turned = delta.y() != 0 || !fades ? delta.y() : delta.x();
    if (turned == 0)
        return Wheel::Nothing;
    if (fades)
        return turned > 0 ? Wheel::MoreOpaque : Wheel::LessOpaque;
    return turned > 0 ? Wheel::Enlarge : Wheel::Reduce;
}

double PinRules::zoomAfter(double zoom, Wheel step)
{
    if (step == Wheel::Enlarge)
        return clampedZoom(zoom * zoomStep);
    return step == Wheel::Reduce ? clampedZoom(zoom / zoomStep) : zoom;
}

double PinRules::opacityAfter(double opacity, Wheel step)
{
    if (step != Wheel::MoreOpaque && step != Wheel::LessOpaque)
        return opacity;
    // Counted in whole steps, so that there and back is where it was.
    const double steps = std::round(opacity * opacitySteps) + (step == Wheel::MoreOpaque ? 1 : -1);
    return std::clamp(steps / opacitySteps, leastOpacity, 1.0);
}

QRectF PinRules::zoomed(QRectF frame, QSizeF image, double zoom)
{
    return {frame.topLeft(), image * zoom};
}

Qt::Edges PinRules::edgesAt(QPointF position, QSizeF frame)
{
    const double right = frame.width() - position.x(), bottom = frame.height() - position.y();
    if (std::min(frame.width(), frame.height()) < leastWithEdges) {
        const double reach = std::min({grip * 2, frame.width() / 3, frame.height() / 3});
        return right < reach && bottom < reach ? Qt::RightEdge | Qt::BottomEdge : Qt::Edges();
    }
    const double left = position.x(), top = position.y();
    if (std::min({left, right, top, bottom}) >= grip)
        return {};
    Qt::Edges edges;
    edges.setFlag(Qt::LeftEdge, left < (std::min(top, bottom) < grip ? cornerGrip : grip));
    edges.setFlag(Qt::RightEdge, right < (std::min(top, bottom) < grip ? cornerGrip : grip));
    edges.setFlag(Qt::TopEdge, top < (std::min(left, right) < grip ? cornerGrip : grip));
    edges.setFlag(Qt::BottomEdge, bottom < (std::min(left, right) < grip ? cornerGrip : grip));
    return edges;
}

QRectF PinRules::resized(QRectF frame, Qt::Edges edges, QPointF drag, QSizeF image)
{
    const bool left = edges & Qt::LeftEdge, top = edges & Qt::TopEdge;
    const bool wider = left || (edges & Qt::RightEdge), higher = top || (edges & Qt::BottomEdge);
    const double across = (frame.width() + (left ? -drag.x() : drag.x())) / image.width();
    const double along = (frame.height() + (top ? -drag.y() : drag.y())) / image.height();
    const double zoom = wider && higher ? std::max(across, along) : wider ? across : along;
    const QSizeF size = image * clampedZoom(zoom);
    return {QPointF(left ? frame.right() - size.width() : frame.left(),
                top ? frame.bottom() - size.height() : frame.top()),
        size};
}

QRectF PinRules::reachable(QRectF frame, const QList<QRect>& screens)
{
    const QSizeF needed(std::min(hold, frame.width()), std::min(hold, frame.height()));
    QPointF nearest;
    double shortest = -1;
    for (const QRectF screen : screens) {
        const auto shift = [](double from, double to, double first, double last, double least) {
            if (to < first + least)
                return first + least - to;
            return from > last - least ? last - least - from : 0.0;
        };
        const QPointF move(
            shift(frame.left(), frame.right(), screen.left(), screen.right(), needed.width()),
            shift(frame.top(), frame.bottom(), screen.top(), screen.bottom(), needed.height()));
        const double distance = std::hypot(move.x(), move.y());
        if (shortest >= 0 && distance >= shortest)
            continue;
        shortest = distance;
        nearest = move;
    }
    return frame.translated(nearest);
}
