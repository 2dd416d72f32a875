// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "fun/FlyAway.h"

#include "fun/FxEasing.h"

#include <cmath>

namespace {

constexpr double landedHeight = 34; ///< Points that the picture is high at last, or wide.
constexpr double arrival = 0.82; ///< Of the duration; then a ring spreads.
constexpr double ringReach = 30; ///< Points.
constexpr double shadowReach = 18;

} // namespace

FlyAway::FlyAway(const FxStage& stage, double duration)
    : m_area(stage.area)
    , m_landing(stage.landing)
    , m_duration(duration)
    , m_accent(stage.theme.accent.rgb())
{
    // First up, or down, then aside: the picture comes into its landing upright.
    const QPointF from = m_area.center();
    m_bend = {between(from.x(), m_landing.x(), 0.78), between(from.y(), m_landing.y(), 0.12)};
    const QRectF way = QRectF(from, m_landing).normalized();
    const double reach = ringReach + landedHeight;
    m_bounds = m_area.adjusted(-shadowReach, -shadowReach, shadowReach, shadowReach)
        | way.adjusted(-reach, -reach, reach, reach);
    m_bounds |= QRectF(m_landing, QSizeF()).adjusted(-reach, -reach, reach, reach);
    // While it is still large it hangs over the curve.
    const double half = std::max(m_area.width(), m_area.height()) / 2;
    m_bounds |= way.adjusted(-half, -half, half, half);
}

QPointF FlyAway::wayAt(double done) const
{
    const double left = 1 - done;
    return m_area.center() * (left * left) + m_bend * (2 * left * done) + m_landing * (done * done);
}

FxSprites FlyAway::at(double seconds) const
{
    using Shape = FxSprite::Shape;
    const double now = seconds / m_duration;
    FxSprites sprites;
    if (now >= 1)
        return sprites;
    const double flown = stage(now, 0, arrival);
    const double smallest = landedHeight / std::max(m_area.width(), m_area.height());
    // It shrinks at once, as it is large, and then picks up speed.
    const double size
        = std::pow(smallest, 0.05 * easeOut(stage(flown, 0, 0.3)) + 0.95 * std::pow(flown, 1.3));
    const QPointF centre = wayAt(std::pow(flown, 1.7));
    const QSizeF extent = m_area.size() * size;
    const double visible = 1 - easeIn(stage(now, arrival - 0.08, arrival + 0.06));
    if (visible > 0) {
        const double lifted = easeOut(stage(flown, 0, 0.25));
        sprites.push_back({Shape::Shade, centre + QPointF(0, 5 * lifted), extent, 0,
            faded(m_shadow, 0.5 * lifted * visible), shadowReach * std::max(size, 0.3) * lifted});
        sprites.push_back({Shape::Picture, centre, extent, 0, faded(0xffffffff, visible)});
    }
    const double flash = 1 - stage(now, 0, 0.22);
    if (flash > 0)
        sprites.push_back(
            {Shape::Square, centre, extent, 0, faded(0xffffffff, 0.4 * flash * flash)});
    const double spread = stage(now, arrival - 0.02, 1);
    if (spread > 0) {
        const double radius = between(4, ringReach, easeOut(spread));
        sprites.push_back({Shape::Glow, m_landing, QSizeF(radius, radius) * 2.4, 0,
            faded(m_accent, 0.8 * (1 - spread))});
        sprites.push_back({Shape::Ring, m_landing, QSizeF(radius, radius) * 2, 0,
            faded(m_accent, 1 - easeIn(spread)), 3.4 * (1 - spread) + 0.4});
    }
    return sprites;
}
