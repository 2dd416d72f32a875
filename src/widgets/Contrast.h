// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QList>

/// Rules for colours that stay readable; see "contrast ratio" and "relative luminance" in WCAG 2.1.
namespace Contrast {

constexpr double text = 4.5; ///< Least ratio for text.
constexpr double symbol = 3; ///< Least ratio for symbols and large text.

/// 1 to 21; both colours count as opaque.
double ratio(QColor first, QColor second);

/// A colour as it looks on an opaque ground.
QColor over(QColor colour, QColor ground);

/// Between two colours, alpha included: 0 is the first, 1 the second.
QColor mixed(QColor first, QColor second, double amount);

/// The colour, or the nearest one on its way to black or white that has this ratio on all grounds,
/// which are all dark or all light; black or white where none has.
QColor readable(QColor colour, const QList<QColor>& grounds, double least = text);

/// White where it can be read on this ground, else black or white, whichever is better read.
QColor onGround(QColor ground);

} // namespace Contrast
