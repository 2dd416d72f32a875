// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/EmojiCell.h"

#include "editor/EmojiArt.h"
#include "editor/GridFocus.h"

#include <QKeyEvent>
#include <QPainter>

namespace {

// Points.
constexpr int side = 40;
constexpr double restingSize = 26, raisedSize = 30; ///< Raised under the pointer or the keyboard.
constexpr float groundOpacity = 0.08f;

} // namespace

EmojiCell::EmojiCell(const Themes& themes, const QString& emoji, Action action, QWidget* parent)
    : QAbstractButton(parent)
    , m_themes(themes)
    , m_emoji(emoji)
{
    setAccessibleName(emoji);
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::StrongFocus);
    setFixedSize(sizeHint());
    connect(this, &QAbstractButton::clicked, this,
        [emoji, picked = std::move(action)] { picked(emoji); });
}

QSize EmojiCell::sizeHint() const
{
    return {side, side};
}

void EmojiCell::paintEvent(QPaintEvent*)
{
    const Theme& theme = m_themes.current();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool isRaised = underMouse() || hasFocus();
    if (isRaised) {
        QColor ground = theme.text;
        ground.setAlphaF(groundOpacity);
        painter.setPen(Qt::NoPen);
        painter.setBrush(isDown() ? theme.fillPressed : ground);
        painter.drawRoundedRect(rect(), Radius::cell, Radius::cell);
    }
    if (hasFocus()) {
        const double half = Extent::focusRing / 2;
        painter.setPen(QPen(theme.accentSymbol, Extent::focusRing));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(
            QRectF(rect()).adjusted(half, half, -half, -half), Radius::cell, Radius::cell);
    }
    painter.translate(QRectF(rect()).center());
    EmojiArt::draw(painter, m_emoji, isRaised ? raisedSize : restingSize, theme.text);
}

void EmojiCell::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else if (!GridFocus::move(*this, event->key()))
        QAbstractButton::keyPressEvent(event);
}
