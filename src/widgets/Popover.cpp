// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/Popover.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>

namespace {

constexpr double radius = Radius::tile;

QPainterPath outline(const QRectF& card)
{
    QPainterPath path;
    path.addRoundedRect(card, radius, radius);
    return path;
}

} // namespace

Popover::Popover(
    const Surroundings& surroundings, const QString& name, QWidget* content, QWidget* parent)
    : QWidget(parent, Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint)
    , m_surroundings(surroundings)
    , m_content(content)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_TranslucentBackground);
    setAccessibleName(name);
    setWindowTitle(name);
    auto* column = new QVBoxLayout(this);
    column->setSizeConstraint(QLayout::SetFixedSize);
    column->setContentsMargins(
        margins() + QMargins(Space::inner, Space::inner, Space::inner, Space::inner));
    column->addWidget(content);
    connect(&m_surroundings.themes, &Themes::changed, this, qOverload<>(&QWidget::update));
}

/// Around the card: room for its shadow, where there can be one.
QMargins Popover::margins() const
{
    return m_surroundings.surfaces.blendsWindows() ? CardFrame::shadowMargins() : QMargins();
}

void Popover::openAt(const QWidget& control)
{
    ensurePolished();
    adjustSize();
    const QRect at(control.mapToGlobal(QPoint()), control.size());
    const QRect screen = control.screen()->availableGeometry();
    QRect card = QRect({}, size()).marginsRemoved(margins());
    card.moveTo(at.center().x() - card.width() / 2, at.bottom() + 1 + Space::tiny);
    if (card.bottom() > screen.bottom())
        card.moveBottom(at.top() - 1 - Space::tiny);
    card.moveLeft(std::clamp(
        card.left(), screen.left(), std::max(screen.left(), screen.right() - card.width())));
    card.moveTop(std::max(card.top(), screen.top()));
    move(card.marginsAdded(margins()).topLeft());
    if (!m_surroundings.surfaces.blendsWindows())
        setMask(QRegion(outline(rect()).toFillPolygon().toPolygon()));
    show();
}

void Popover::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    QWidget* const first = m_content->focusWidget();
    (first ? first : m_content)->setFocus(Qt::PopupFocusReason);
}

void Popover::paintEvent(QPaintEvent*)
{
    const Theme& theme = m_surroundings.themes.current();
    const bool blends = m_surroundings.surfaces.blendsWindows();
    const QRectF card = QRectF(rect().marginsRemoved(margins()));
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (blends)
        CardFrame::paintShadow(painter, card, radius, theme.shadow);
    // Unlike a card it lies on a window of ours, whose text must not shine through.
    QColor ground = theme.card;
    ground.setAlphaF(1);
    painter.fillPath(outline(card), ground);
    const double half = Extent::hairline / 2;
    painter.setPen(QPen(theme.hairline, Extent::hairline));
    painter.drawRoundedRect(card.adjusted(half, half, -half, -half), radius - half, radius - half);
}

void Popover::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

void Popover::mousePressEvent(QMouseEvent* event)
{
    if (!rect().marginsRemoved(margins()).contains(event->position().toPoint()))
        close();
}
