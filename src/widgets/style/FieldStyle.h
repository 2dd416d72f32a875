// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Theme.h"

#include <QStyleOption>

class QPainter;

/// What a value is typed into or chosen in: lines of text, numbers and combo boxes.
namespace FieldStyle {

/// The sunken ground that text is typed on; a ring in the accent while it has the focus.
void paintField(QPainter& painter, const QStyleOption& option, const Theme& theme);

void paintNumber(QPainter& painter, const QStyleOptionSpinBox& option, const Theme& theme);
QRect numberPart(const QStyleOptionSpinBox& option, QStyle::SubControl wanted);

void paintChoice(QPainter& painter, const QStyleOptionComboBox& option, const Theme& theme);
void paintChoiceLabel(QPainter& painter, const QStyleOptionComboBox& option, const Theme& theme);
QRect choicePart(const QStyleOptionComboBox& option, QStyle::SubControl wanted);

QSize lineSize(QSize contents);
QSize numberSize(QSize contents);
QSize choiceSize(QSize contents);

} // namespace FieldStyle
