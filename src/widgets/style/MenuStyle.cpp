// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/style/MenuStyle.h"

#include "widgets/Contrast.h"
#include "widgets/Icons.h"
#include "widgets/style/StyleTools.h"

#include <QPainter>

using namespace Qt::StringLiterals;
using StyleTools::has;

namespace {

constexpr int padding = Space::related; // At both ends of a row.
constexpr int separatorHeight = 9;
constexpr int shortcutGap = Space::wide;
constexpr int markSize = 14;

int checkWidth(const QStyleOptionMenuItem& option)
{
    return option.menuHasCheckableItems ? markSize + Space::tiny : 0;
}

int iconWidth(const QStyleOptionMenuItem& option)
{
    return option.maxIconWidth > 0 ? Extent::smallSymbol + Space::related : 0;
}

void paintSeparator(QPainter& painter, const QStyleOptionMenuItem& option, const Theme& theme)
{
    const QRect line(option.rect.left() + padding, option.rect.center().y(),
        option.rect.width() - 2 * padding, 1);
    painter.fillRect(line, theme.hairline);
}

/// Opaque: what is written on it must be read, whatever lies behind.
QColor groundOf(const Theme& theme)
{
    return Contrast::over(theme.card, theme.window);
}

/// Takes a part of the box away at its beginning.
QRect taken(const QStyleOption& option, QRect& box, int width)
{
    const QRect part = StyleTools::atStart(option, box, width);
    box = StyleTools::atEnd(option, box, box.width() - width);
    return part;
}

} // namespace

void MenuStyle::paintCard(
    QPainter& painter, QRect box, const Theme& theme, double radius, Corners corners)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor ground = groundOf(theme);
    if (corners == Corners::Cut)
        painter.fillRect(box, ground);
    else
        StyleTools::paintBox(painter, box, radius, ground);
    StyleTools::paintBox(painter, box, radius, Qt::transparent, theme.hairline);
    painter.restore();
}

void MenuStyle::paintMiddle(QPainter& painter, QRect box, const Theme& theme)
{
    painter.fillRect(box, groundOf(theme));
    painter.fillRect(QRect(box.left(), box.top(), 1, box.height()), theme.hairline);
    painter.fillRect(QRect(box.right(), box.top(), 1, box.height()), theme.hairline);
}

void MenuStyle::paintItem(QPainter& painter, const QStyleOptionMenuItem& option, const Theme& theme)
{
    if (option.menuItemType == QStyleOptionMenuItem::Separator) {
        paintSeparator(painter, option, theme);
        return;
    }
    const StyleTools::Stroke stroke(painter, option.state);
    const bool isChosen
        = has(option.state, QStyle::State_Selected) && has(option.state, QStyle::State_Enabled);
    if (isChosen)
        StyleTools::paintBox(painter, option.rect, Radius::chip, theme.accent);
    const QColor ink = isChosen ? theme.onAccent : theme.text;
    QRect box = option.rect.adjusted(padding, 0, -padding, 0);
    const QRect check = taken(option, box, checkWidth(option));
    if (option.checked)
        Icons::paint(
            painter, u"checkmark"_s, StyleTools::atStart(option, check, markSize), markSize, ink);
    const QRect icon = taken(option, box, iconWidth(option));
    if (!option.icon.isNull()) {
        const QSize size(Extent::smallSymbol, Extent::smallSymbol);
        option.icon.paint(&painter,
            QStyle::alignedRect(option.direction, Qt::AlignLeft | Qt::AlignVCenter, size, icon),
            Qt::AlignCenter, isChosen ? QIcon::Active : QIcon::Normal);
    }
    if (option.menuItemType == QStyleOptionMenuItem::SubMenu)
        Icons::paint(painter, u"chevron.right"_s, StyleTools::atEnd(option, box, markSize),
            markSize, isChosen ? theme.onAccent : theme.secondary);

    painter.setFont(option.font);
    const int flags = Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextShowMnemonic;
    const auto side = [&option](Qt::Alignment alignment) {
        return int(QStyle::visualAlignment(option.direction, alignment));
    };
    const qsizetype tab = option.text.indexOf(u'\t');
    painter.setPen(ink);
    painter.drawText(box, flags | side(Qt::AlignLeft), option.text.left(tab));
    if (tab < 0)
        return;
    painter.setPen(isChosen ? theme.onAccent : theme.secondary);
    painter.drawText(box, flags | side(Qt::AlignRight), option.text.mid(tab + 1));
}

QSize MenuStyle::itemSize(const QStyleOptionMenuItem& option, QSize contents)
{
    if (option.menuItemType == QStyleOptionMenuItem::Separator)
        return {contents.width(), separatorHeight};
    int width = contents.width() + 2 * padding + checkWidth(option) + iconWidth(option);
    if (option.text.contains(u'\t'))
        width += shortcutGap;
    else if (option.menuItemType == QStyleOptionMenuItem::SubMenu)
        width += markSize + Space::related;
    return {width, std::max(Extent::control, option.fontMetrics.height() + Space::related)};
}
