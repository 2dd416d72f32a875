// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/style/StyleTools.h"

#include <QPainter>

StyleTools::Stroke::Stroke(QPainter& painter, QStyle::State state)
    : m_painter(painter)
{
    constexpr double disabled = 0.4;
    m_painter.save();
    m_painter.setRenderHint(QPainter::Antialiasing);
    if (!has(state, QStyle::State_Enabled))
        m_painter.setOpacity(m_painter.opacity() * disabled);
}

StyleTools::Stroke::~Stroke()
{
    m_painter.restore();
}

bool StyleTools::has(QStyle::State state, QStyle::StateFlag flag)
{
    return state.testFlag(flag);
}

void StyleTools::paintBox(QPainter& painter, QRectF box, double radius, const QColor& fill,
    const QColor& line, double width)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    if (!line.isValid()) {
        painter.drawRoundedRect(box, radius, radius);
        return;
    }
    painter.setPen(QPen(line, width));
    const double inset = width / 2;
    painter.drawRoundedRect(
        box.adjusted(inset, inset, -inset, -inset), radius - inset, radius - inset);
}

QColor StyleTools::fill(const Theme& theme, QStyle::State state, const QColor& rest)
{
    if (has(state, QStyle::State_Sunken))
        return theme.fillPressed;
    return has(state, QStyle::State_Enabled) && has(state, QStyle::State_MouseOver)
        ? theme.fillHover
        : rest;
}

QRect StyleTools::atStart(const QStyleOption& option, QRect box, int width)
{
    return QStyle::alignedRect(
        option.direction, Qt::AlignLeft | Qt::AlignVCenter, {width, box.height()}, box);
}

QRect StyleTools::atEnd(const QStyleOption& option, QRect box, int width)
{
    return QStyle::alignedRect(
        option.direction, Qt::AlignRight | Qt::AlignVCenter, {width, box.height()}, box);
}
