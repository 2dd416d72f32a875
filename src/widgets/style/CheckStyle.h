// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Theme.h"

#include <QStyleOption>

class QPainter;

/// What is on or off: check boxes and radio buttons, and the switches of settings.
namespace CheckStyle {

constexpr int extent = 18; ///< Points, of the box to check.
constexpr QSize switchSize {40, 24}; ///< Points.

void paintBox(QPainter& painter, const QStyleOption& option, const Theme& theme);
void paintRadio(QPainter& painter, const QStyleOption& option, const Theme& theme);

/// @param on from 0 to 1, so that it can be seen to move
void paintSwitch(QPainter& painter, const QStyleOption& option, const Theme& theme, double on);

} // namespace CheckStyle
