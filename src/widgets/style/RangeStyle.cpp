// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/style/RangeStyle.h"

#include "widgets/Contrast.h"
#include "widgets/style/StyleTools.h"

#include <QPainter>
#include <QStyle>

using StyleTools::has;

namespace {

constexpr double grooveWidth = 4; // Points across.
constexpr int shortestHandle = 28; // Points.

bool isFlat(const QStyleOptionSlider& option)
{
    return option.orientation == Qt::Horizontal;
}

} // namespace

void RangeStyle::paintSlider(
    QPainter& painter, const QStyleOptionSlider& option, QRect knobBox, const Theme& theme)
{
    const StyleTools::Stroke stroke(painter, option.state);
    const QPointF middle = QRectF(knobBox).center();
    const QRectF box = option.rect;
    QRectF groove = isFlat(option)
        ? QRectF(box.left() + 1, middle.y() - grooveWidth / 2, box.width() - 2, grooveWidth)
        : QRectF(middle.x() - grooveWidth / 2, box.top() + 1, grooveWidth, box.height() - 2);
    StyleTools::paintBox(painter, groove, grooveWidth / 2, theme.fillPressed);
    if (isFlat(option) != option.upsideDown) // From the end where the least is.
        isFlat(option) ? groove.setRight(middle.x()) : groove.setBottom(middle.y());
    else
        isFlat(option) ? groove.setLeft(middle.x()) : groove.setTop(middle.y());
    StyleTools::paintBox(painter, groove, grooveWidth / 2, theme.accent);

    const double radius = knob / 2.0 - 1;
    painter.setPen(Qt::NoPen);
    QColor shade = theme.shadow;
    shade.setAlphaF(0.25f);
    painter.setBrush(shade);
    painter.drawEllipse(middle + QPointF(0, 0.5), radius + 0.75, radius + 0.75);
    const bool isHeld = has(option.state, QStyle::State_Sunken)
        && option.activeSubControls.testFlag(QStyle::SC_SliderHandle);
    const QColor rest = theme.dark ? theme.text : QColor(Qt::white);
    painter.setBrush(isHeld ? Contrast::mixed(rest, theme.accent, 0.25) : rest);
    painter.drawEllipse(middle, radius, radius);
}

void RangeStyle::paintScrollBar(
    QPainter& painter, const QStyleOptionSlider& option, QRect handle, const Theme& theme)
{
    if (option.minimum >= option.maximum)
        return;
    constexpr double thin = 6;
    constexpr double thick = 8; // While the pointer is on it.
    const StyleTools::Stroke stroke(painter, option.state);
    const bool isReached
        = has(option.state, QStyle::State_MouseOver) || has(option.state, QStyle::State_Sunken);
    const double inset = (scrollExtent - (isReached ? thick : thin)) / 2;
    QRectF bar = handle;
    bar = isFlat(option) ? bar.adjusted(2, inset, -2, -inset) : bar.adjusted(inset, 2, -inset, -2);
    QColor colour = theme.secondary;
    colour.setAlphaF(isReached ? 0.75f : 0.45f);
    StyleTools::paintBox(painter, bar, std::min(bar.width(), bar.height()) / 2, colour);
}

QRect RangeStyle::scrollPart(const QStyleOptionSlider& option, QStyle::SubControl part)
{
    const QRect all = option.rect;
    const int length = isFlat(option) ? all.width() : all.height();
    const int range = option.maximum - option.minimum;
    int handle = length;
    if (range > 0) {
        const double share = double(option.pageStep) / (double(range) + option.pageStep);
        handle = std::min(length, std::max(shortestHandle, int(share * length)));
    }
    const int start = QStyle::sliderPositionFromValue(
        option.minimum, option.maximum, option.sliderPosition, length - handle, option.upsideDown);
    const auto stretch = [&](int from, int to) {
        const QRect logical = isFlat(option)
            ? QRect(all.left() + from, all.top(), to - from, all.height())
            : QRect(all.left(), all.top() + from, all.width(), to - from);
        return QStyle::visualRect(option.direction, all, logical);
    };
    switch (part) {
    case QStyle::SC_ScrollBarSlider:
        return stretch(start, start + handle);
    case QStyle::SC_ScrollBarGroove:
        return all;
    case QStyle::SC_ScrollBarSubPage:
        return stretch(0, start);
    case QStyle::SC_ScrollBarAddPage:
        return stretch(start + handle, length);
    default:
        return {}; // No arrows.
    }
}

void RangeStyle::paintProgress(
    QPainter& painter, const QStyleOptionProgressBar& option, const Theme& theme)
{
    const StyleTools::Stroke stroke(painter, option.state);
    QRectF bar(option.rect.left(), QRectF(option.rect).center().y() - grooveWidth / 2,
        option.rect.width(), grooveWidth);
    StyleTools::paintBox(painter, bar, grooveWidth / 2, theme.fillPressed);
    const int range = option.maximum - option.minimum;
    if (range <= 0)
        return;
    const double done = double(option.progress - option.minimum) / range;
    const double width = std::max(grooveWidth, bar.width() * done);
    bar = option.direction == Qt::LeftToRight
        ? QRectF(bar.topLeft(), QSizeF(width, grooveWidth))
        : QRectF(bar.right() - width, bar.top(), width, grooveWidth);
    if (done > 0)
        StyleTools::paintBox(painter, bar, grooveWidth / 2, theme.accent);
}
