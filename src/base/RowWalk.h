// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Rows.h"

#include <vector>

/// Goes down some rows of a picture, one by one, with the row above each still at hand.
class RowWalk final {
public:
    /// The rows from first up to, but without, end.
    RowWalk(RowSource& source, int first, int end);

    /// The next row, valid until the next call; null after the last.
    Result<const std::uint32_t*> next();

    /// The row before the one that next() gave last; null when that was the first.
    const std::uint32_t* above() const { return m_above; }

private:
    RowSource& m_source;
    int m_y;
    int m_end;
    Rows m_rows;
    int m_index = 0; // Of the next row in m_rows.
    const std::uint32_t* m_row = nullptr;
    const std::uint32_t* m_above = nullptr;
    std::vector<std::uint32_t> m_kept;
};
