// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Rows.h"

#include <QImage>

/// How a captured pattern differs from the one that was drawn.
struct PatternComparison {
    int pixels = 0;
    int wrong = 0; ///< Of them.
    int largestDifference = 0; ///< In any colour of any pixel, of 255.
    bool isBlack = false; ///< All of what was captured.
};

/// A picture by which it shows whether a screen is captured as it is: neighbours that differ, all
/// colours, nothing that repeats.
namespace TestPattern {

inline constexpr QSize size(240, 136); ///< Device pixels.

QImage draw(); ///< Format_RGB32.

/// What has another size than the pattern is wrong everywhere.
Result<PatternComparison> compare(const QImage& drawn, RowSource& captured);

} // namespace TestPattern
