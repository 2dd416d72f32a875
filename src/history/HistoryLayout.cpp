// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "history/HistoryLayout.h"

#include <algorithm>

HistoryLayout::HistoryLayout(const QList<int>& sizes, const Metrics& metrics)
    : m_metrics(metrics)
{
    const int inner = metrics.width - 2 * metrics.margin;
    m_columns = std::max(1, (inner + metrics.gap) / (metrics.least + metrics.gap));
    int top = 0;
    for (const int size : sizes) {
        Section section {m_count, size, top, 0};
        section.bottom = top + metrics.headingHeight + rows(section) * rowHeight();
        m_sections.append(section);
        m_count += size;
        top = section.bottom;
    }
}

int HistoryLayout::height() const
{
    if (m_sections.isEmpty())
        return 0;
    return m_sections.last().bottom - m_metrics.gap + m_metrics.margin;
}

int HistoryLayout::rows(const Section& section) const
{
    return (section.count + m_columns - 1) / m_columns;
}

const HistoryLayout::Section& HistoryLayout::sectionOf(int index) const
{
    return *(std::ranges::upper_bound(m_sections, index, {}, &Section::first) - 1);
}

int HistoryLayout::sectionAt(int y) const
{
    const auto below = std::ranges::upper_bound(m_sections, y, {}, &Section::top);
    return std::max(0, int(below - m_sections.begin()) - 1);
}

QRect HistoryLayout::card(int index) const
{
    const Section& section = sectionOf(index);
    const int row = (index - section.first) / m_columns;
    const int column = (index - section.first) % m_columns;
    // What is left over is spread evenly, to the point.
    const int inner = m_metrics.width - 2 * m_metrics.margin - (m_columns - 1) * m_metrics.gap;
    const int left = inner * column / m_columns, right = inner * (column + 1) / m_columns;
    const int x = m_metrics.margin + left + column * m_metrics.gap, width = right - left;
    return {m_metrics.direction == Qt::LeftToRight ? x : m_metrics.width - x - width,
        section.top + m_metrics.headingHeight + row * rowHeight(), width, m_metrics.cardHeight};
}

int HistoryLayout::group(int index) const
{
    return int(&sectionOf(index) - m_sections.constData());
}

int HistoryLayout::cardAt(QPoint at) const
{
    const auto [first, last] = cardsWithin(at.y(), at.y() + 1);
    for (int index = first; index < last; ++index)
        if (card(index).contains(at))
            return index;
    return none;
}

std::pair<int, int> HistoryLayout::groupsWithin(int top, int bottom) const
{
    if (m_sections.isEmpty() || bottom <= 0 || top >= m_sections.last().bottom)
        return {0, 0};
    return {sectionAt(top), sectionAt(bottom - 1) + 1};
}

std::pair<int, int> HistoryLayout::cardsWithin(int top, int bottom) const
{
    const auto [firstGroup, lastGroup] = groupsWithin(top, bottom);
    if (firstGroup == lastGroup)
        return {0, 0};
    const auto rowsAbove = [this](const Section& section, int y) {
        return std::clamp(
            (y - section.top - m_metrics.headingHeight) / rowHeight(), 0, rows(section));
    };
    const Section& upper = m_sections[firstGroup];
    const Section& lower = m_sections[lastGroup - 1];
    const int first = upper.first + std::min(upper.count, rowsAbove(upper, top) * m_columns);
    const int last = lower.first
        + std::min(lower.count, rowsAbove(lower, bottom - 1 + rowHeight()) * m_columns);
    return {first, std::max(first, last)};
}

QRect HistoryLayout::heading(int group, int top) const
{
    const Section& section = m_sections[group];
    const int lowest = section.bottom - m_metrics.gap - m_metrics.headingHeight;
    const int y = std::max(section.top, std::min(top, lowest));
    return {0, y, m_metrics.width, m_metrics.headingHeight};
}

int HistoryLayout::moved(int index, Move move, int page) const
{
    if (m_count == 0)
        return none;
    if (move == Move::First || (index == none && move != Move::Last))
        return 0;
    switch (move) {
    case Move::Previous:
        return std::max(0, index - 1);
    case Move::Next:
        return std::min(m_count - 1, index + 1);
    case Move::Up:
        return vertically(index, -1);
    case Move::Down:
        return vertically(index, 1);
    case Move::PageUp:
        return paged(index, -page);
    case Move::PageDown:
        return paged(index, page);
    default:
        return m_count - 1;
    }
}

/// Stays in its column, as far as the row there has it.
int HistoryLayout::vertically(int index, int rowStep) const
{
    int group = this->group(index);
    const int column = (index - m_sections[group].first) % m_columns;
    int row = (index - m_sections[group].first) / m_columns + rowStep;
    if (row < 0 && group == 0)
        return index;
    if (row < 0)
        row = rows(m_sections[--group]) - 1;
    if (row >= rows(m_sections[group])) {
        if (group == groups() - 1)
            return index;
        ++group;
        row = 0;
    }
    const Section& section = m_sections[group];
    return section.first + std::min(section.count - 1, row * m_columns + column);
}

/// At least a row, and otherwise no farther than the distance.
int HistoryLayout::paged(int index, int distance) const
{
    const int step = distance < 0 ? -1 : 1;
    const int from = card(index).top();
    int found = vertically(index, step);
    for (int next = vertically(found, step);
         next != found && std::abs(card(next).top() - from) <= std::abs(distance);
         next = vertically(next, step))
        found = next;
    return found;
}
