// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "fun/Crumbling.h"

#include "fun/FxDice.h"
#include "fun/FxEasing.h"

#include <cmath>

namespace {

constexpr double mostCells = 3000;
constexpr double leastCell = 8; ///< Points.
constexpr double blownAside = 210; ///< Points at most.
constexpr double blownUp = 150;
constexpr double appearing = 0.07; ///< Of the duration, for a cell to become one colour.
constexpr double closing = 0.26; ///< Of the duration, for its hole to close.
constexpr double holeDarkness = 0.42;

/// The mean of a few pixels of a part of the picture.
QRgb meanColour(const QImage& picture, QRectF part)
{
    constexpr int samples = 4;
    int red = 0, green = 0, blue = 0;
    for (int row = 0; row < samples; ++row) {
        const double y = part.top() + part.height() * (row + 0.5) / samples;
        const auto* const line = reinterpret_cast<const QRgb*>(
            picture.constScanLine(std::clamp(int(y), 0, picture.height() - 1)));
        for (int column = 0; column < samples; ++column) {
            const double x = part.left() + part.width() * (column + 0.5) / samples;
            const QRgb pixel = line[std::clamp(int(x), 0, picture.width() - 1)];
            red += qRed(pixel);
            green += qGreen(pixel);
            blue += qBlue(pixel);
        }
    }
    constexpr int all = samples * samples;
    return qRgb(red / all, green / all, blue / all);
}

} // namespace

Crumbling::Crumbling(const FxStage& stage, double duration)
    : m_area(stage.area)
    , m_bounds(m_area.adjusted(-blownAside, -blownUp - 40, 1.6 * blownAside, 40))
    , m_duration(duration)
{
    const QImage picture = stage.picture.depth() == 32
        ? stage.picture
        : stage.picture.convertToFormat(QImage::Format_RGB32);
    if (picture.isNull())
        return;
    const double side
        = std::max(leastCell, std::sqrt(m_area.width() * m_area.height() / mostCells));
    const int columns = std::max(1, int(std::ceil(m_area.width() / side)));
    const int rows = std::max(1, int(std::ceil(m_area.height() / side)));
    FxDice dice(stage.seed);
    const double perPoint = picture.width() / m_area.width();
    m_cells.reserve(std::size_t(columns) * std::size_t(rows));
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column) {
            const QRectF cell
                = QRectF(m_area.topLeft() + QPointF(column, row) * side, QSizeF(side, side));
            const QRectF inPicture(
                (cell.topLeft() - m_area.topLeft()) * perPoint, cell.size() * perPoint);
            addCell(cell & m_area, meanColour(picture, inPicture), dice);
        }
}

void Crumbling::addCell(QRectF cell, QRgb colour, FxDice& dice)
{
    // The wind comes from the left, so what is on the right, and higher up, goes first; some cells
    // hold on for longer, and the front is no straight line.
    const double fromRight = (m_area.right() - cell.center().x()) / m_area.width();
    const double fromTop = (cell.center().y() - m_area.top()) / m_area.height();
    const double front = 0.72 * fromRight + 0.16 * fromTop
        + 0.05 * std::sin(fromTop * 9 + fromRight * 4) + dice.between(0, 0.16);
    const double leaves = m_duration * (0.04 + 0.6 * std::clamp(front, 0.0, 1.0));
    const double life = std::min(m_duration * dice.between(0.3, 0.46), m_duration - leaves);
    m_cells.push_back({cell.center(), cell.size(), colour, leaves, life,
        {blownAside * dice.between(0.25, 1.35), -blownUp * dice.between(-0.12, 1)},
        dice.between(2, 14), dice.between(0, fullCircle)});
}

FxSprites Crumbling::at(double seconds) const
{
    FxSprites holes, flying;
    for (const auto& cell : m_cells) {
        const double age = seconds - cell.leaves;
        if (age < -appearing * m_duration || seconds >= m_duration)
            continue;
        if (age < 0) {
            const double there = 1 + age / (appearing * m_duration);
            flying.push_back({FxSprite::Shape::Square, cell.centre, cell.size, 0,
                faded(cell.colour, easeInOut(there))});
            continue;
        }
        const double closed = age / (closing * m_duration);
        if (closed < 1)
            holes.push_back({FxSprite::Shape::Ground, cell.centre, cell.size, 0,
                faded(m_shade, holeDarkness * (1 - closed) * (1 - closed))});
        const double flown = age / cell.life;
        if (flown >= 1)
            continue;
        const double speed = flown * between(flown, 1, 0.35);
        const QPointF centre = cell.centre + cell.drift * speed
            + QPointF(0, cell.wave * speed * std::sin(cell.phase + 7 * flown));
        flying.push_back({FxSprite::Shape::Square, centre, cell.size * (1 - 0.7 * easeInOut(flown)),
            0, faded(cell.colour, 1 - easeIn(flown))});
    }
    holes.insert(holes.end(), flying.begin(), flying.end());
    return holes;
}
