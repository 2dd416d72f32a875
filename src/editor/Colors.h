// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

/// The colours that marks are made in.
namespace Colors {

inline constexpr QColor red(0xff, 0x3b, 0x30), orange(0xff, 0x95, 0x00), yellow(0xff, 0xcc, 0x00),
    green(0x28, 0xcd, 0x41), teal(0x59, 0xad, 0xc4), blue(0x00, 0x7a, 0xff),
    purple(0xaf, 0x52, 0xde), pink(0xff, 0x2d, 0x55);

/// Black on light colours, white on the others; white too if it is no colour.
QColor contrasting(const QColor& color);

/// The colour, a part of the way (0 to 1) to white.
QColor towardWhite(const QColor& color, double part);

QColor withAlpha(QColor color, double alpha); ///< Alpha from 0 to 1.

} // namespace Colors
