// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "fun/Confetti.h"

#include "fun/FxDice.h"
#include "widgets/Contrast.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double drag = 3.4; ///< Per second: how soon the air has its way with a piece.
constexpr double fadeShare = 0.28; ///< Of the duration, at its end.

QList<QRgb> coloursOf(const Theme& theme)
{
    using enum SystemColour;
    QList<QRgb> colours {theme.accent.rgb(), Contrast::mixed(theme.accent, Qt::white, 0.45).rgb()};
    for (const auto each : {Pink, Orange, Yellow, Mint, Blue, Purple})
        colours << Theme::system(each).rgb();
    return colours;
}

/// How far something has come that starts at one speed and ends at another.
double way(double speed, double last, double seconds)
{
    return last * seconds + (speed - last) * (1 - std::exp(-drag * seconds)) / drag;
}

} // namespace

Confetti::Confetti(const Options& options, const Theme& theme)
    : m_duration(options.duration)
    , m_bounds(options.stage.adjusted(-48, -48, 48, 48))
{
    FxDice dice(options.seed);
    const auto colours = coloursOf(theme);
    const QRectF& stage = options.stage;
    // On a large stage pieces fly further, and are a little larger to be seen at all.
    const double largeness = std::clamp(std::sqrt(stage.width() / 700), 0.8, 1.7);
    for (int i = 0; i < options.pieces; ++i) {
        Piece piece {};
        const double kind = dice.between(0, 1);
        piece.shape = kind < 0.66 ? FxSprite::Shape::Slip
            : kind < 0.88         ? FxSprite::Shape::Disc
                                  : FxSprite::Shape::Curl;
        const double side = dice.between(9, 14) * largeness;
        piece.size = piece.shape == FxSprite::Shape::Slip ? QSizeF(side * 1.2, side * 0.72)
            : piece.shape == FxSprite::Shape::Disc        ? QSizeF(side * 0.8, side * 0.8)
                                                          : QSizeF(side * 2.1, side * 0.75);
        piece.colour = colours[dice.below(colours.size())];
        if (options.mode == Mode::Burst) {
            // As from two hands: outwards and up, faster in the middle of each bundle.
            const double hand = i % 2 ? 1 : -1;
            const double spread = dice.between(-1, 1) + dice.between(-1, 1);
            piece.from = {stage.center().x() + hand * stage.width() * dice.between(0.02, 0.14),
                stage.top() + stage.height() * dice.between(0.6, 0.7)};
            piece.speed = {hand * stage.width() * (0.52 + 0.62 * spread),
                -stage.height() * dice.between(0.8, 2.5)};
            piece.delay = dice.between(0, 0.06);
        } else {
            piece.from = {dice.between(stage.left(), stage.right()), stage.top() - 16};
            piece.speed = {dice.between(-40, 40), dice.between(60, 160)};
            piece.delay = dice.between(0, options.duration * 0.45);
        }
        piece.fall = std::clamp(stage.height() * dice.between(0.42, 0.72), 130.0, 620.0);
        piece.swing = dice.between(5, 16);
        piece.swingRate = dice.between(4, 9);
        piece.phase = dice.between(0, fullCircle);
        piece.turn = dice.between(0, fullCircle);
        piece.turnRate = dice.between(-5, 5);
        piece.flipRate = dice.between(6, 15);
        m_pieces.push_back(piece);
    }
}

FxSprites Confetti::at(double seconds) const
{
    FxSprites sprites;
    const double fade = (m_duration - seconds) / (m_duration * fadeShare);
    if (fade <= 0)
        return sprites;
    sprites.reserve(m_pieces.size());
    for (const auto& piece : m_pieces) {
        if (seconds < piece.delay)
            continue;
        const FxSprite sprite = shown(piece, seconds - piece.delay, fade);
        if (m_bounds.contains(sprite.box()))
            sprites.push_back(sprite);
    }
    return sprites;
}

FxSprite Confetti::shown(const Piece& piece, double age, double fade) const
{
    // Papers tumble: they show their edge again and again, and their back is darker.
    const double flip = std::cos(piece.phase + piece.flipRate * age);
    const double born = std::min(age / 0.08, 1.0);
    const double swing = piece.swing * std::min(age, 1.0);
    FxSprite sprite;
    sprite.shape = piece.shape;
    sprite.centre = {piece.from.x() + way(piece.speed.x(), 0, age)
            + swing * std::sin(piece.swingRate * age + piece.phase),
        piece.from.y() + way(piece.speed.y(), piece.fall, age)};
    sprite.size = piece.size * (0.4 + 0.6 * born);
    if (piece.shape != FxSprite::Shape::Curl)
        sprite.size.rheight() *= std::max(std::abs(flip), 0.12);
    sprite.turn = piece.turn + piece.turnRate * age;
    sprite.thickness = piece.shape == FxSprite::Shape::Curl ? 3.2 : 0;
    const QColor colour(piece.colour);
    const double light = 0.5 + 0.5 * flip;
    sprite.colour = faded(
        Contrast::mixed(colour, flip < 0 ? Qt::black : Qt::white, flip < 0 ? 0.22 : 0.18 * light)
            .rgb(),
        fade);
    return sprite;
}
