// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Theme.h"

#include <QStyleOption>

class QPainter;

/// Push buttons, the default one on the accent, and the buttons of toolbars.
namespace ButtonStyle {

void paintGround(QPainter& painter, const QStyleOptionButton& option, const Theme& theme);
void paintLabel(QPainter& painter, const QStyleOptionButton& option, const Theme& theme);
QSize size(const QStyleOptionButton& option, QSize contents);

/// A tool that is checked lies on the accent: its icon is drawn in the mode Active then.
void paintTool(QPainter& painter, const QStyleOptionToolButton& option, const Theme& theme);
QSize toolSize(const QStyleOptionToolButton& option, QSize contents);

} // namespace ButtonStyle
