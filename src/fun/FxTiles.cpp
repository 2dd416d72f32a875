// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "fun/FxTiles.h"

#include <algorithm>
#include <cmath>

FxTiles::FxTiles(QSize screen, int side)
    : m_screen(screen)
    , m_side(side)
    , m_columns((screen.width() + side - 1) / side)
    , m_rows((screen.height() + side - 1) / side)
    , m_touched(std::size_t(m_columns) * std::size_t(m_rows))
{
}

void FxTiles::add(QRectF box)
{
    const auto tile = [this](double at, int count) {
        return int(std::clamp(std::floor(at / m_side), -1.0, double(count)));
    };
    const int left = std::max(tile(box.left(), m_columns), 0);
    const int right = std::min(tile(box.right(), m_columns), m_columns - 1);
    const int bottom = std::min(tile(box.bottom(), m_rows), m_rows - 1);
    for (int row = std::max(tile(box.top(), m_rows), 0); row <= bottom && left <= right; ++row)
        std::fill_n(m_touched.begin() + row * m_columns + left, right - left + 1, char(1));
}

void FxTiles::add(const FxTiles& others)
{
    for (std::size_t i = 0; i < m_touched.size(); ++i)
        if (others.m_touched[i])
            m_touched[i] = 1;
}

void FxTiles::clear()
{
    std::fill(m_touched.begin(), m_touched.end(), char(0));
}

QRegion FxTiles::region() const
{
    // In rows from above and from the left, as a region wants its rectangles.
    std::vector<QRect> runs;
    for (int row = 0; row < m_rows; ++row) {
        const auto* const line = m_touched.data() + row * m_columns;
        for (int column = 0; column < m_columns; ++column) {
            const int first = column;
            while (column < m_columns && line[column])
                ++column;
            if (column == first)
                continue;
            const QRect run(first * m_side, row * m_side, (column - first) * m_side, m_side);
            runs.push_back(run & QRect({}, m_screen));
        }
    }
    QRegion region;
    region.setRects(runs.data(), int(runs.size()));
    return region;
}
