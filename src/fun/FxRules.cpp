// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "fun/FxRules.h"

#include <algorithm>

namespace {

constexpr double leastExtent = 2;
constexpr double unknownDuration = 1;
constexpr double panelEnd = 64; ///< From the corner to where a tray usually is, in points.
constexpr double outlineThickness = 6; ///< Points, at first.
constexpr double panelMiddle = 14; ///< From the edge of the screen, in points.

const FxKindInfo* find(QStringView text)
{
    const auto* const found = std::ranges::find_if(
        fxKinds, [text](const FxKindInfo& info) { return text == info.text; });
    return found == fxKinds.end() ? nullptr : found;
}

} // namespace

FxRules::Plan FxRules::planOf(QStringView kind)
{
    const FxKindInfo* info = find(kind);
    return info ? Plan {info->kind, info->duration} : Plan {FxKind::Fly, unknownDuration};
}

FxRules::Plan FxRules::adapted(Plan plan, Movement movement, Windows windows)
{
    if (plan.kind == FxKind::None)
        return plan;
    const Plan flash = planOf(u"flash");
    if (windows == Windows::Opaque)
        return {FxKind::Outline, flash.duration};
    return movement == Movement::Reduced ? flash : plan;
}

std::array<QRect, 4> FxRules::outlineAt(double seconds, double duration, QRectF area)
{
    const double left = std::max(1 - seconds / duration, 0.0);
    const int thickness = qRound(outlineThickness * left * left);
    if (thickness == 0)
        return {};
    const QRect outer = area.toAlignedRect();
    const QRect inner = outer.adjusted(thickness, thickness, -thickness, -thickness);
    return {outer.adjusted(0, 0, 0, -(outer.height() - thickness)),
        outer.adjusted(0, outer.height() - thickness, 0, 0),
        QRect(outer.left(), inner.top(), thickness, inner.height()),
        QRect(inner.right() + 1, inner.top(), thickness, inner.height())};
}

QString FxRules::known(const QString& stored)
{
    return find(stored) ? stored : QStringLiteral("flash");
}

bool FxRules::isLargeEnough(QRectF area)
{
    return area.width() > leastExtent && area.height() > leastExtent;
}

const DisplayInfo* FxRules::displayOf(QRectF area, const QList<DisplayInfo>& displays)
{
    const auto shows = [area](const DisplayInfo& each) { return each.points.intersects(area); };
    const auto found = std::find_if(displays.begin(), displays.end(), shows);
    if (found != displays.end())
        return &*found;
    return displays.isEmpty() ? nullptr : &displays.first();
}

QRectF FxRules::onDisplay(QRectF area, const DisplayInfo& display)
{
    const QPointF corner(
        area.left() - display.points.left(), display.points.bottom() - area.bottom());
    return {corner, area.size()};
}

QPointF FxRules::landing(QRectF frame, QRectF workArea, std::optional<QPointF> trayIcon)
{
    if (trayIcon && frame.contains(*trayIcon))
        return *trayIcon - frame.topLeft();
    const bool atFoot = workArea.top() <= frame.top() && workArea.bottom() < frame.bottom();
    return {frame.width() - panelEnd, atFoot ? frame.height() - panelMiddle : panelMiddle};
}
