// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "history/HistoryGrid.h"

#include "widgets/Accessible.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>

namespace {

/// The arrow keys go where they point, and cards follow one another in the direction of reading.
std::optional<HistoryLayout::Move> moveOf(const QKeyEvent& event, Qt::LayoutDirection direction)
{
    using Move = HistoryLayout::Move;
    switch (event.key()) {
    case Qt::Key_Left:
        return direction == Qt::LeftToRight ? Move::Previous : Move::Next;
    case Qt::Key_Right:
        return direction == Qt::LeftToRight ? Move::Next : Move::Previous;
    case Qt::Key_Up:
        return Move::Up;
    case Qt::Key_Down:
        return Move::Down;
    case Qt::Key_PageUp:
        return Move::PageUp;
    case Qt::Key_PageDown:
        return Move::PageDown;
    case Qt::Key_Home:
        return Move::First;
    case Qt::Key_End:
        return Move::Last;
    default:
        return std::nullopt;
    }
}

CardSelection::How howOf(Qt::KeyboardModifiers modifiers)
{
    if (modifiers & Qt::ShiftModifier)
        return CardSelection::How::UpTo;
    return modifiers & Qt::ControlModifier ? CardSelection::How::Toggled
                                           : CardSelection::How::Alone;
}

} // namespace

void HistoryGrid::mousePressEvent(QMouseEvent* event)
{
    m_pressed = HistoryLayout::none;
    if (event->button() != Qt::LeftButton)
        return;
    const QPoint at = event->position().toPoint();
    const int index = m_layout.cardAt(at + QPoint(0, top()));
    if (index == HistoryLayout::none) {
        m_selection.clear();
        viewport()->update();
    } else if (event->modifiers() & (Qt::ShiftModifier | Qt::ControlModifier)) {
        choose(index, howOf(event->modifiers()));
    } else {
        m_pressed = index;
        m_pressedAt = at;
    }
}

void HistoryGrid::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint at = event->position().toPoint();
    if (!(event->buttons() & Qt::LeftButton)) {
        const auto& heading = m_layout.groupsWithin(top(), top() + 1);
        const bool isBelowHeading = heading.first == heading.second
            || !seen(m_layout.heading(heading.first, top())).contains(at);
        hover(isBelowHeading ? m_layout.cardAt(at + QPoint(0, top())) : HistoryLayout::none);
        return;
    }
    if (m_pressed == HistoryLayout::none
        || (at - m_pressedAt).manhattanLength() < QApplication::startDragDistance())
        return;
    const int index = std::exchange(m_pressed, HistoryLayout::none);
    if (!m_selection.contains(item(index).id))
        choose(index, CardSelection::How::Alone);
    Q_EMIT dragWanted();
}

void HistoryGrid::mouseReleaseEvent(QMouseEvent* event)
{
    const int index = std::exchange(m_pressed, HistoryLayout::none);
    if (index == HistoryLayout::none || event->button() != Qt::LeftButton
        || index >= m_layout.count())
        return;
    choose(index, CardSelection::How::Alone);
    Q_EMIT opened(item(index));
}

void HistoryGrid::keyPressEvent(QKeyEvent* event)
{
    const auto move = moveOf(*event, layoutDirection());
    if (move && m_layout.count() > 0) {
        const bool extends = event->modifiers() & Qt::ShiftModifier;
        choose(m_layout.moved(m_selection.current(), *move, viewport()->height()),
            extends ? CardSelection::How::UpTo : CardSelection::How::Alone);
    } else if (event->matches(QKeySequence::SelectAll)) {
        m_selection.chooseAll(ids());
        viewport()->update();
    } else if (event->key() == Qt::Key_Space && m_selection.current() >= 0) {
        choose(m_selection.current(), CardSelection::How::Toggled);
    } else if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        && m_selection.current() >= 0) {
        Q_EMIT opened(item(m_selection.current()));
    } else {
        event->ignore();
        Q_EMIT keyUnused(event);
    }
}

void HistoryGrid::contextMenuEvent(QContextMenuEvent* event)
{
    QPoint at = event->globalPos();
    int index = m_layout.cardAt(event->pos() + QPoint(0, top()));
    if (event->reason() == QContextMenuEvent::Keyboard) {
        index = m_selection.current();
        if (index >= 0)
            at = viewport()->mapToGlobal(seen(m_layout.card(index)).center());
    }
    if (index < 0)
        return;
    if (!m_selection.contains(item(index).id))
        choose(index, CardSelection::How::Alone);
    Q_EMIT menuWanted(at);
}

void HistoryGrid::focusInEvent(QFocusEvent* event)
{
    QAbstractScrollArea::focusInEvent(event);
    const bool isByKey = event->reason() == Qt::TabFocusReason
        || event->reason() == Qt::BacktabFocusReason || event->reason() == Qt::OtherFocusReason;
    if (isByKey && m_selection.current() < 0 && m_layout.count() > 0)
        choose(0, CardSelection::How::Alone);
    else
        Accessible::currentPartChanged(*this);
    viewport()->update();
}

void HistoryGrid::focusOutEvent(QFocusEvent* event)
{
    QAbstractScrollArea::focusOutEvent(event);
    viewport()->update();
}
