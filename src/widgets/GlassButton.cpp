// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/GlassButton.h"

#include "widgets/Contrast.h"
#include "widgets/Enlarged.h"
#include "widgets/Icons.h"
#include "widgets/Mirrored.h"
#include "widgets/Motion.h"

#include <QKeyEvent>
#include <QPainter>

namespace {

/// The focus ring is painted inside the widget, which is larger than what it shows by that much.
constexpr int ringRoom = int(2 * Extent::focusRing);

} // namespace

GlassButton::GlassButton(const Themes& themes, Look look, QWidget* parent)
    : QAbstractButton(parent)
    , m_themes(themes)
    , m_look(look)
{
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_hover.setDuration(int(Motion::hover.count()));
    m_hover.setStartValue(0.0);
    m_hover.setEndValue(1.0);
    m_hover.setCurrentTime(0);
    connect(&m_hover, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
    connect(&m_themes, &Themes::changed, this, [this] {
        updateGeometry();
        update();
    });
}

GlassButton* GlassButton::ofSymbol(
    const Themes& themes, const QString& symbol, const QString& help, Look look)
{
    auto* button = new GlassButton(themes, look);
    button->setSymbol(symbol);
    button->setToolTip(help);
    button->setAccessibleName(help);
    return button;
}

GlassButton* GlassButton::ofText(const Themes& themes, const QString& text, Look look)
{
    auto* button = new GlassButton(themes, look);
    button->setText(text);
    return button;
}

void GlassButton::setSymbol(const QString& symbol)
{
    m_symbol = symbol;
    update();
}

void GlassButton::setSymbolExtent(QSize extent)
{
    m_extent = extent;
    updateGeometry();
}

QSize GlassButton::sizeHint() const
{
    const Theme& theme = m_themes.current();
    QSize size(enlarged(m_extent.width(), theme), enlarged(m_extent.height(), theme));
    if (!text().isEmpty()) {
        const QFontMetrics metrics(theme.font(TextStyle::Headline));
        const int symbolWidth = m_symbol.isEmpty() ? 0 : symbolExtent() + Space::related;
        size.setWidth(metrics.horizontalAdvance(text()) + symbolWidth + 2 * Space::group);
        size.setHeight(std::max(Extent::toolbar, metrics.height() + 2 * Space::related));
    }
    return size + QSize(2 * ringRoom, 2 * ringRoom);
}

void GlassButton::paintEvent(QPaintEvent*)
{
    const Theme& theme = m_themes.current();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled())
        painter.setOpacity(0.4);
    QRectF box = QRectF(rect()).adjusted(ringRoom, ringRoom, -ringRoom, -ringRoom);
    if (hasFocus()) {
        constexpr double away = 1.5 * Extent::focusRing;
        painter.setPen(QPen(theme.accentSymbol, Extent::focusRing));
        painter.drawRoundedRect(
            box.adjusted(-away, -away, away, away), Radius::cell + away, Radius::cell + away);
    }
    if (isDown() && !theme.reducedMotion) {
        painter.translate(box.center());
        painter.scale(Motion::pressedScale, Motion::pressedScale);
        painter.translate(-box.center());
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground());
    painter.drawRoundedRect(box, Radius::cell, Radius::cell);

    if (text().isEmpty()) {
        Icons::paint(painter, m_symbol, box, symbolExtent(), ink());
        return;
    }
    painter.setFont(theme.font(TextStyle::Headline));
    painter.setPen(ink());
    if (!m_symbol.isEmpty()) {
        box.adjust(Space::group, 0, -Space::group, 0);
        const QRectF first(box.topLeft(), QSizeF(symbolExtent(), box.height()));
        Icons::paint(painter, m_symbol, mirrored(first, *this), symbolExtent(), ink());
        box.setLeft(first.right() + Space::related);
    }
    painter.drawText(mirrored(box, *this), Qt::AlignCenter, text());
}

int GlassButton::symbolExtent() const
{
    return enlarged(Extent::smallSymbol, m_themes.current());
}

QColor GlassButton::ground() const
{
    const Theme& theme = m_themes.current();
    const double hover = m_hover.currentValue().toDouble();
    if (m_look == Look::Prominent)
        return isDown() ? theme.accentPressed
                        : Contrast::mixed(theme.accent, theme.accentHover, hover);
    if (isDown())
        return theme.fillPressed;
    QColor rest = theme.fill;
    if (m_look == Look::Plain)
        rest.setAlphaF(0);
    return isChecked() ? theme.fillPressed : Contrast::mixed(rest, theme.fillHover, hover);
}

QColor GlassButton::ink() const
{
    const Theme& theme = m_themes.current();
    return m_look == Look::Prominent ? theme.onAccent : theme.text;
}

void GlassButton::enterEvent(QEnterEvent* event)
{
    m_hover.setDirection(QAbstractAnimation::Forward);
    m_hover.start();
    QAbstractButton::enterEvent(event);
}

void GlassButton::leaveEvent(QEvent* event)
{
    m_hover.setDirection(QAbstractAnimation::Backward);
    m_hover.start();
    QAbstractButton::leaveEvent(event);
}

void GlassButton::keyPressEvent(QKeyEvent* event)
{
    // The toolkit's buttons answer to Space alone.
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}
