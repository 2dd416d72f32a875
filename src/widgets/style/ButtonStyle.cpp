// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/style/ButtonStyle.h"

#include "widgets/Icons.h"
#include "widgets/Motion.h"
#include "widgets/style/StyleTools.h"

#include <QPainter>

using namespace Qt::StringLiterals;
using StyleTools::has;

namespace {

constexpr int caretSize = 12; // Points.
constexpr int mnemonics = Qt::TextShowMnemonic | Qt::TextSingleLine;

bool isProminent(const QStyleOptionButton& option)
{
    return option.features.testFlag(QStyleOptionButton::DefaultButton);
}

bool opensMenu(const QStyleOptionToolButton& option)
{
    return option.features.testFlag(QStyleOptionToolButton::HasMenu);
}

QColor prominentFill(const Theme& theme, QStyle::State state)
{
    if (has(state, QStyle::State_Sunken))
        return theme.accentPressed;
    return has(state, QStyle::State_MouseOver) ? theme.accentHover : theme.accent;
}

void shrinkIfPressed(QPainter& painter, const QStyleOption& option, const Theme& theme)
{
    if (!has(option.state, QStyle::State_Sunken) || theme.reducedMotion)
        return;
    const QPointF middle = QRectF(option.rect).center();
    painter.translate(middle);
    painter.scale(Motion::pressedScale, Motion::pressedScale);
    painter.translate(-middle);
}

/// An icon, a text, or the one before the other, in the middle of a box.
void paintContent(QPainter& painter, const QStyleOption& option, QRect box, const QPixmap& icon,
    QSize iconSize, const QString& text)
{
    const int textWidth = option.fontMetrics.size(mnemonics, text).width();
    const int iconWidth = icon.isNull() ? 0 : iconSize.width();
    const int gap = iconWidth && textWidth ? Space::related : 0;
    const int width = std::min(iconWidth + gap + textWidth, box.width());
    box = QStyle::alignedRect(option.direction, Qt::AlignCenter, {width, box.height()}, box);
    if (iconWidth) {
        const QRect place = QStyle::alignedRect(option.direction,
            (textWidth ? Qt::AlignLeft : Qt::AlignHCenter) | Qt::AlignVCenter, iconSize, box);
        painter.drawPixmap(place, icon);
    }
    if (textWidth)
        painter.drawText(StyleTools::atEnd(option, box, width - iconWidth - gap),
            mnemonics | Qt::AlignCenter, text);
}

QPixmap pixmapOf(const QIcon& icon, const QPainter& painter, const QStyleOption& option, QSize size,
    bool onAccent)
{
    if (icon.isNull())
        return {};
    const auto state = has(option.state, QStyle::State_On) ? QIcon::State::On : QIcon::State::Off;
    // The painter is pale already where the control is disabled.
    return icon.pixmap(size, painter.device()->devicePixelRatioF(),
        onAccent ? QIcon::Active : QIcon::Normal, state);
}

} // namespace

void ButtonStyle::paintGround(
    QPainter& painter, const QStyleOptionButton& option, const Theme& theme)
{
    const StyleTools::Stroke stroke(painter, option.state);
    shrinkIfPressed(painter, option, theme);
    QColor rest = theme.fill;
    if (option.features.testFlag(QStyleOptionButton::Flat))
        rest = Qt::transparent;
    if (has(option.state, QStyle::State_On))
        rest = theme.fillPressed;
    StyleTools::paintBox(painter, option.rect, Radius::cell,
        isProminent(option) ? prominentFill(theme, option.state)
                            : StyleTools::fill(theme, option.state, rest));
}

void ButtonStyle::paintLabel(
    QPainter& painter, const QStyleOptionButton& option, const Theme& theme)
{
    const StyleTools::Stroke stroke(painter, option.state);
    shrinkIfPressed(painter, option, theme);
    const bool onAccent = isProminent(option);
    const QColor ink = onAccent ? theme.onAccent : theme.text;
    QRect box = option.rect;
    if (option.features.testFlag(QStyleOptionButton::HasMenu)) {
        const QRect caret = StyleTools::atEnd(option, box, caretSize + 2 * Space::related);
        Icons::paint(painter, u"chevron.down"_s, caret, caretSize, ink);
        box = StyleTools::atStart(option, box, box.width() - caretSize);
    }
    painter.setPen(ink);
    paintContent(painter, option, box,
        pixmapOf(option.icon, painter, option, option.iconSize, onAccent), option.iconSize,
        option.text);
}

QSize ButtonStyle::size(const QStyleOptionButton& option, QSize contents)
{
    const bool isSymbol = option.text.isEmpty() && !option.icon.isNull();
    const int menu = option.features.testFlag(QStyleOptionButton::HasMenu) ? caretSize : 0;
    const int padding = isSymbol ? Space::related : Space::group;
    const QSize padded = contents + QSize(2 * padding + menu, Space::related);
    return padded.expandedTo({isSymbol ? 34 : 0, Extent::control});
}

void ButtonStyle::paintTool(
    QPainter& painter, const QStyleOptionToolButton& option, const Theme& theme)
{
    const StyleTools::Stroke stroke(painter, option.state);
    shrinkIfPressed(painter, option, theme);
    const bool isOn = has(option.state, QStyle::State_On);
    const bool isRaised = !has(option.state, QStyle::State_AutoRaise);
    StyleTools::paintBox(painter, option.rect, Radius::cell,
        isOn ? prominentFill(theme, option.state)
             : StyleTools::fill(theme, option.state, isRaised ? theme.fill : Qt::transparent));

    const QColor ink = isOn ? theme.onAccent : theme.text;
    QRect box = option.rect;
    if (opensMenu(option)) {
        const int width = caretSize + Space::tiny;
        Icons::paint(painter, u"chevron.down"_s,
            StyleTools::atEnd(option, box, width).adjusted(-2, 0, -2, 0), caretSize, ink);
        box = StyleTools::atStart(option, box, box.width() - width);
    }
    painter.setPen(ink);
    painter.setFont(option.font);
    const bool showsText = option.toolButtonStyle != Qt::ToolButtonIconOnly || option.icon.isNull();
    const bool showsIcon = option.toolButtonStyle != Qt::ToolButtonTextOnly;
    const QPixmap icon
        = showsIcon ? pixmapOf(option.icon, painter, option, option.iconSize, isOn) : QPixmap();
    if (option.toolButtonStyle == Qt::ToolButtonTextUnderIcon && !icon.isNull()) {
        const int height = option.iconSize.height() + Space::tiny;
        paintContent(painter, option, box.adjusted(0, Space::tiny, 0, height - box.height()), icon,
            option.iconSize, {});
        paintContent(painter, option, box.adjusted(0, height, 0, 0), {}, {}, option.text);
        return;
    }
    paintContent(painter, option, box, icon, option.iconSize, showsText ? option.text : QString());
}

QSize ButtonStyle::toolSize(const QStyleOptionToolButton& option, QSize contents)
{
    const int menu = opensMenu(option) ? caretSize + Space::tiny : 0;
    const QSize padded = contents + QSize(Space::inner + menu, Space::related);
    return padded.expandedTo({Extent::control, Extent::control});
}
