// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "history/AccessibleCards.h"

#include "history/CardText.h"
#include "history/HistoryGrid.h"

using namespace Qt::StringLiterals;

int AccessibleCards::count() const
{
    return m_grid.m_layout.count();
}

int AccessibleCards::current() const
{
    return m_grid.m_selection.current();
}

AccessiblePart AccessibleCards::part(int index) const
{
    const HistoryItem& item = m_grid.item(index);
    const DayCalendar& calendar = m_grid.m_catalogue.calendar();
    QStringList words {
        item.appName(), calendar.title(calendar.day(item)), CardText::line(item, calendar)};
    if (m_grid.m_catalogue.isSearching())
        words << CardText::found(item, m_grid.m_catalogue, m_grid.m_textOf);
    words.removeAll({});
    return {QAccessible::ListItem, words.join(u", "_s), m_grid.seen(m_grid.m_layout.card(index)),
        m_grid.m_selection.contains(item.id)};
}

int AccessibleCards::partAt(QPoint place) const
{
    return m_grid.m_layout.cardAt(place + QPoint(0, m_grid.top()));
}

void AccessibleCards::goTo(int index)
{
    m_grid.choose(index, CardSelection::How::Alone);
}

void AccessibleCards::press(int index)
{
    Q_EMIT m_grid.opened(m_grid.item(index));
}
