// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/RowWalk.h"

#include <vector>

Result<Walk> walkRows(RowSource& source, RowRange range, const RowVisitor& visit)
{
    const std::uint32_t* above = nullptr;
    std::vector<std::uint32_t> kept;
    for (int y = range.first; y < range.end;) {
        if (above) { // Fetching takes the old rows away.
            kept.assign(above, above + source.size().width());
            above = kept.data();
        }
        const auto rows = source.rows(y, range.end - y);
        if (!rows)
            return rows.error();
        for (int i = 0; i < rows->count; ++i) {
            const auto walk = visit(rows->row(i), above);
            if (!walk || *walk == Walk::Stop)
                return walk;
            above = rows->row(i);
        }
        y += rows->count;
    }
    return Walk::On;
}
