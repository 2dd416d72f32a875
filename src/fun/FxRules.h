// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Displays.h"

#include <array>
#include <optional>

/// How a capture is celebrated where it was taken.
enum class FxKind {
    None,
    Flash,
    Confetti,
    Sparkles,
    Pixels, ///< The picture crumbles.
    Fly, ///< The picture flies to the tray.
    Outline, ///< A frame that closes, where nothing blends windows; never chosen by the user.
};

struct FxKindInfo {
    FxKind kind;
    QLatin1String text; ///< As kept in the preferences.
    QLatin1String label;
    double duration; ///< Seconds.
};

inline constexpr std::array<FxKindInfo, 6> fxKinds {{
    {FxKind::None, QLatin1String("none"), QLatin1String("None"), 0},
    {FxKind::Flash, QLatin1String("flash"), QLatin1String("Camera flash"), 0.3},
    {FxKind::Confetti, QLatin1String("confetti"), QLatin1String("Confetti burst"), 1.6},
    {FxKind::Sparkles, QLatin1String("sparkles"), QLatin1String("Sparkles"), 1.1},
    {FxKind::Pixels, QLatin1String("pixels"), QLatin1String("Disintegrate"), 1.3},
    {FxKind::Fly, QLatin1String("fly"), QLatin1String("Fly to menu bar"), 0.8},
}};

/// What decides about an effect before anything is drawn.
namespace FxRules {

struct Plan {
    FxKind kind = FxKind::None;
    double duration = 0; ///< Seconds.
    bool operator==(const Plan&) const = default;
};

/// By a kind's text; any other text than one of fxKinds is a fly of one second.
Plan planOf(QStringView kind);

/// What the desktop makes of a plan: without motion all is a flash, without blended windows a brief
/// outline.
enum class Movement { Full, Reduced };
enum class Windows { Blended, Opaque };
Plan adapted(Plan plan, Movement movement, Windows windows);

/// The sides of an outline that grows thinner inside an area's edge: top, bottom, left, right.
/// Whole points, at least one thick; empty once it has ended.
std::array<QRect, 4> outlineAt(double seconds, double duration, QRectF area);

/// The text of a kind: as stored if it is one of fxKinds, else the flash.
QString known(const QString& stored);

/// Wider and taller than 2 points.
bool isLargeEnough(QRectF area);

/// The first display that shows some of an area, else the primary one; null when there is none.
/// @param area global points, y up
const DisplayInfo* displayOf(QRectF area, const QList<DisplayInfo>& displays);

/// A global area, y up, in points of a display's top left corner, y down.
QRectF onDisplay(QRectF area, const DisplayInfo& display);

/// Where a picture flies to: the tray's icon, if it is on this screen, else the end of the panel at
/// the screen's head or foot, else the upper right corner. All in points, y down.
/// @return from the top left corner of the frame
QPointF landing(QRectF frame, QRectF workArea, std::optional<QPointF> trayIcon);

} // namespace FxRules
