// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "history/CardSelection.h"

#include <algorithm>

void CardSelection::choose(const QStringList& ids, int index, How how)
{
    m_current = index;
    m_currentId = ids[index];
    if (how == How::UpTo) {
        const auto anchor = ids.indexOf(m_anchorId);
        const auto [from, to] = std::minmax<qsizetype>({anchor < 0 ? index : anchor, index});
        m_chosen = {ids.begin() + from, ids.begin() + to + 1};
        if (anchor >= 0)
            return;
    } else if (how == How::Toggled) {
        if (!m_chosen.remove(m_currentId))
            m_chosen.insert(m_currentId);
    } else {
        m_chosen = {m_currentId};
    }
    m_anchorId = m_currentId;
}

void CardSelection::chooseAll(const QStringList& ids)
{
    m_chosen = {ids.begin(), ids.end()};
    if (m_current < 0 && !ids.isEmpty()) {
        m_current = 0;
        m_currentId = m_anchorId = ids.first();
    }
}

void CardSelection::clear()
{
    *this = {};
}

void CardSelection::follow(const QStringList& ids)
{
    if (m_current < 0)
        return;
    m_chosen.intersect({ids.begin(), ids.end()});
    const auto found = ids.indexOf(m_currentId);
    if (found >= 0) {
        m_current = int(found);
    } else if (ids.isEmpty()) {
        clear();
    } else {
        m_current = std::min(m_current, int(ids.size()) - 1);
        m_currentId = m_anchorId = ids[m_current];
        if (m_chosen.isEmpty())
            m_chosen = {m_currentId};
    }
}
