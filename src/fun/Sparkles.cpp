// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "fun/Sparkles.h"

#include "fun/FxDice.h"
#include "fun/FxEasing.h"
#include "widgets/Contrast.h"

#include <cmath>

namespace {

constexpr double reach = 64; ///< Points that stars and their glow lie outside the area at most.
constexpr double outside = 10; ///< Points that the middle of a star does.

/// A point on the area's edge, or a little in from there, as the eye looks for its outline.
QPointF placeIn(QRectF area, FxDice& dice, bool onEdge)
{
    if (!onEdge)
        return {dice.between(area.left(), area.right()), dice.between(area.top(), area.bottom())};
    const double along = dice.between(0, area.width() + area.height());
    const double depth = outside - std::pow(dice.between(0, 1), 2) * (outside + 26);
    const bool far = dice.below(2);
    if (along < area.width())
        return {area.left() + along, far ? area.bottom() + depth : area.top() - depth};
    return {far ? area.right() + depth : area.left() - depth, area.top() + along - area.width()};
}

QList<QRgb> coloursOf(const Theme& theme)
{
    const QColor gold = Contrast::mixed(Theme::system(SystemColour::Yellow), Qt::white, 0.25);
    return {0xffffffff, 0xffffffff, gold.rgb(), gold.rgb(), gold.rgb(),
        Contrast::mixed(theme.accent, Qt::white, 0.35).rgb(),
        Contrast::mixed(Theme::system(SystemColour::Pink), Qt::white, 0.45).rgb()};
}

} // namespace

Sparkles::Sparkles(const FxStage& stage, double duration)
    : m_area(stage.area)
    , m_duration(duration)
    , m_accent(Contrast::mixed(stage.theme.accent, Qt::white, 0.3).rgb())
{
    FxDice dice(stage.seed);
    const auto colours = coloursOf(stage.theme);
    const double around = 2 * (m_area.width() + m_area.height());
    const int count = std::clamp(int(around / 20), 34, 150);
    const double largeness = std::clamp(std::sqrt(around / 2600), 0.75, 1.6);
    for (int i = 0; i < count; ++i) {
        const bool onEdge = i % 5 != 0;
        const QPointF centre = placeIn(m_area, dice, onEdge);
        // They come along with a light that passes from the upper left to the lower right.
        const double passed = ((centre.x() - m_area.left()) / m_area.width()
                                  + (centre.y() - m_area.top()) / m_area.height())
            / 2;
        const double size = dice.between(0, 1);
        const double life = dice.between(0.36, 0.6) * duration;
        const double born
            = std::min(duration * (0.5 * std::clamp(passed, 0.0, 1.0) + dice.between(-0.04, 0.18)),
                duration - life);
        m_stars.push_back({centre, largeness * (6 + 22 * size * size * size), born, life,
            dice.between(4, 22), dice.between(-0.2, 0.2), dice.between(-0.5, 0.5),
            colours[dice.below(colours.size())]});
    }
}

QRectF Sparkles::bounds() const
{
    return m_area.adjusted(-reach, -reach, reach, reach);
}

FxSprites Sparkles::at(double seconds) const
{
    using Shape = FxSprite::Shape;
    FxSprites sprites;
    for (const auto& star : m_stars) {
        const double lived = (seconds - star.born) / star.life;
        if (lived <= 0 || lived >= 1)
            continue;
        // Opens fast, closes slowly, and twinkles once in between.
        const double open
            = lived < 0.3 ? easeOut(lived / 0.3) : 1 - easeInOut(stage(lived, 0.3, 1));
        const double twinkle = 1 - 0.22 * std::pow(std::sin(lived * fullCircle), 2);
        const double radius = star.radius * open * twinkle;
        if (radius < 0.5)
            continue;
        const QPointF centre = star.centre - QPointF(0, star.rise * easeOut(lived));
        const double turn = star.turn + star.turning * lived;
        sprites.push_back({Shape::Glow, centre, QSizeF(radius, radius) * 3.2, 0,
            faded(star.colour, 0.62 * open)});
        sprites.push_back({Shape::Star, centre, QSizeF(radius, radius) * 2, turn, star.colour});
    }
    return sprites;
}
