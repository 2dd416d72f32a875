// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/RowWalk.h"

RowWalk::RowWalk(RowSource& source, int first, int end)
    : m_source(source)
    , m_y(first)
    , m_end(end)
{
}

Result<const std::uint32_t*> RowWalk::next()
{
    if (m_index == m_rows.count) {
        if (m_y == m_end)
            return nullptr;
        if (m_row) { // Fetching takes the old rows away.
            m_kept.assign(m_row, m_row + m_rows.width);
            m_row = m_kept.data();
        }
        const auto rows = m_source.rows(m_y, m_end - m_y);
        if (!rows)
            return rows.error();
        m_rows = *rows;
        m_y += m_rows.count;
        m_index = 0;
    }
    m_above = m_row;
    m_row = m_rows.row(m_index++);
    return m_row;
}
