// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Rows.h"

#include <functional>

/// Some rows of a picture: from first up to, but without, end.
struct RowRange {
    int first = 0;
    int end = 0;
};

enum class Walk { On, Stop };

/// Sees a row and the one above it, null for the first of a range; both are valid during the call.
using RowVisitor
    = std::function<Result<Walk>(const std::uint32_t* row, const std::uint32_t* above)>;

/// Goes down some rows of a picture until the visitor stops, which is passed on, or either fails.
Result<Walk> walkRows(RowSource& source, RowRange range, const RowVisitor& visit);
