// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Theme.h"

#include <QStyleOption>

class QPainter;

/// What shows a place in a range: sliders, scroll bars and progress.
namespace RangeStyle {

constexpr int knob = 18; ///< Points, of a slider.
constexpr int scrollExtent = 12; ///< Points, across a scroll bar.

/// @param knob where the slider's knob is
void paintSlider(
    QPainter& painter, const QStyleOptionSlider& option, QRect knob, const Theme& theme);

/// @param handle where the part that is dragged is
void paintScrollBar(
    QPainter& painter, const QStyleOptionSlider& option, QRect handle, const Theme& theme);
QRect scrollPart(const QStyleOptionSlider& option, QStyle::SubControl part);

void paintProgress(QPainter& painter, const QStyleOptionProgressBar& option, const Theme& theme);

} // namespace RangeStyle
