// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Theme.h"

#include <QStyleOption>

class QPainter;

/// Menus, the lists of combo boxes, and tooltips: rounded cards with rows.
namespace MenuStyle {

constexpr int margin = 5; ///< Points between the card's edge and its rows.

/// Points from the card's edge to the title of a row that can be checked, without an icon.
constexpr int textStart = margin + Space::related + 14 + Space::tiny;

enum class Corners { Round, Cut }; ///< Cut by the window's own shape where nothing is blended.

void paintCard(QPainter& painter, QRect box, const Theme& theme, double radius, Corners corners);

/// A part of the card between its left and right edges, both included.
void paintMiddle(QPainter& painter, QRect box, const Theme& theme);

/// One row: check mark or icon, title, and behind a tab in its text the shortcut.
void paintItem(QPainter& painter, const QStyleOptionMenuItem& option, const Theme& theme);
QSize itemSize(const QStyleOptionMenuItem& option, QSize contents);

} // namespace MenuStyle
