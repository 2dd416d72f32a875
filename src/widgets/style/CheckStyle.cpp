// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/style/CheckStyle.h"

#include "widgets/Contrast.h"
#include "widgets/Icons.h"
#include "widgets/style/StyleTools.h"

#include <QPainter>

using namespace Qt::StringLiterals;
using StyleTools::has;

namespace {

constexpr int markSize = 14; // Points.

/// The line around what is off: it must be seen against the ground, which a hairline need not.
QColor outline(const Theme& theme)
{
    QColor line = theme.secondary;
    line.setAlphaF(0.7f);
    return line;
}

QColor onFill(const Theme& theme, QStyle::State state)
{
    return has(state, QStyle::State_Sunken) ? theme.accentPressed : theme.accent;
}

void paintGround(
    QPainter& painter, const QStyleOption& option, const Theme& theme, bool isOn, double radius)
{
    if (isOn)
        StyleTools::paintBox(painter, option.rect, radius, onFill(theme, option.state));
    else
        StyleTools::paintBox(painter, option.rect, radius,
            StyleTools::fill(theme, option.state, Qt::transparent), outline(theme), 1.5);
}

} // namespace

void CheckStyle::paintBox(QPainter& painter, const QStyleOption& option, const Theme& theme)
{
    const StyleTools::Stroke stroke(painter, option.state);
    const bool isPartial = has(option.state, QStyle::State_NoChange);
    const bool isOn = has(option.state, QStyle::State_On);
    paintGround(painter, option, theme, isOn || isPartial, Radius::chip - 1);
    if (isOn || isPartial)
        Icons::paint(painter, isPartial ? u"minus"_s : u"checkmark"_s, option.rect, markSize,
            theme.onAccent);
}

void CheckStyle::paintRadio(QPainter& painter, const QStyleOption& option, const Theme& theme)
{
    const StyleTools::Stroke stroke(painter, option.state);
    const bool isOn = has(option.state, QStyle::State_On);
    paintGround(painter, option, theme, isOn, extent / 2.0);
    if (!isOn)
        return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme.onAccent);
    painter.drawEllipse(QRectF(option.rect).center(), 3.5, 3.5);
}

void CheckStyle::paintSwitch(
    QPainter& painter, const QStyleOption& option, const Theme& theme, double on)
{
    constexpr double gap = 3; // Between the knob and the edge.
    const StyleTools::Stroke stroke(painter, option.state);
    const QRectF track(
        QStyle::alignedRect(option.direction, Qt::AlignCenter, switchSize, option.rect));
    const double radius = track.height() / 2;
    // Off is told from on by more than a colour: by an outline, and a knob in its colour.
    StyleTools::paintBox(
        painter, track, radius, Contrast::mixed(theme.fillHover, onFill(theme, option.state), on));
    if (on < 1)
        StyleTools::paintBox(painter, track, radius, Qt::transparent, theme.hairline);
    const double size = track.height() - 2 * gap;
    const double way
        = (track.width() - 2 * gap - size) * (option.direction == Qt::LeftToRight ? on : 1 - on);
    const QRectF knob(track.left() + gap + way, track.top() + gap, size, size);
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme.hairline);
    painter.drawEllipse(knob.adjusted(-0.5, 0.5, 0.5, 1.5));
    const QColor knobOn = theme.dark ? theme.text : QColor(Qt::white);
    painter.setBrush(Contrast::mixed(theme.dark ? theme.secondary : knobOn, knobOn, on));
    painter.drawEllipse(knob);
}
