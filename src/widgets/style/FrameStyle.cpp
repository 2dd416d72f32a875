// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/style/FrameStyle.h"

#include "widgets/style/StyleTools.h"

#include <QFrame>
#include <QPainter>

using StyleTools::has;

void FrameStyle::paintFrame(
    QPainter& painter, const QStyleOption& option, const Theme& theme, const QColor& ground)
{
    // What is in it is not paler either where it is disabled.
    {
        const StyleTools::Stroke full(painter, QStyle::State_Enabled);
        StyleTools::paintBox(painter, option.rect, Radius::cell, ground);
    }
    const StyleTools::Stroke stroke(painter, option.state);
    const bool hasFocus = has(option.state, QStyle::State_HasFocus);
    StyleTools::paintBox(painter, option.rect, Radius::cell, Qt::transparent,
        hasFocus ? theme.accentSymbol : theme.hairline);
}

void FrameStyle::paintItem(QPainter& painter, const QStyleOption& option, const Theme& theme)
{
    const StyleTools::Stroke stroke(painter, option.state);
    if (has(option.state, QStyle::State_Selected))
        StyleTools::paintBox(painter, option.rect, Radius::chip, theme.accent);
    else if (has(option.state, QStyle::State_MouseOver))
        StyleTools::paintBox(painter, option.rect, Radius::chip, theme.fillHover);
    if (has(option.state, QStyle::State_HasFocus)
        && has(option.state, QStyle::State_KeyboardFocusChange))
        StyleTools::paintBox(painter, QRectF(option.rect).adjusted(2, 2, -2, -2), Radius::chip - 2,
            Qt::transparent,
            has(option.state, QStyle::State_Selected) ? theme.onAccent : theme.accentSymbol,
            Extent::focusRing);
}

QSize FrameStyle::itemSize(QSize contents)
{
    return contents + QSize(0, Space::related);
}

void FrameStyle::paintSeparator(QPainter& painter, const QStyleOption& option, const Theme& theme)
{
    const QPoint middle = option.rect.center();
    if (has(option.state, QStyle::State_Horizontal))
        painter.fillRect(middle.x(), option.rect.top() + Space::tiny, 1,
            option.rect.height() - 2 * Space::tiny, theme.hairline);
    else
        painter.fillRect(option.rect.left() + Space::tiny, middle.y(),
            option.rect.width() - 2 * Space::tiny, 1, theme.hairline);
}

void FrameStyle::paintFocus(
    QPainter& painter, const QStyleOption& option, const Theme& theme, double radius)
{
    const StyleTools::Stroke stroke(painter, option.state);
    StyleTools::paintBox(painter, option.rect, radius + 2 * Extent::focusRing, Qt::transparent,
        theme.accentSymbol, Extent::focusRing);
}

bool FrameStyle::paintLine(QPainter& painter, const QStyleOption& option, const Theme& theme)
{
    const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(&option);
    if (!frame)
        return false;
    const QPoint middle = option.rect.center();
    if (frame->frameShape == QFrame::HLine)
        painter.fillRect(option.rect.left(), middle.y(), option.rect.width(), 1, theme.hairline);
    else if (frame->frameShape == QFrame::VLine)
        painter.fillRect(middle.x(), option.rect.top(), 1, option.rect.height(), theme.hairline);
    else
        return false;
    return true;
}
