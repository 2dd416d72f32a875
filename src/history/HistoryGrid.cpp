// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "history/HistoryGrid.h"

#include "widgets/Motion.h"

#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace {

constexpr int leastWidth = 200; // Of a card, in points.
constexpr int before = 24; // Letters shown before what was found.
constexpr int shownText = 120; // Letters of recognised text that a card takes at most.

/// The part of a text around what is found in it.
QString around(const QString& text, const QString& wanted)
{
    const QString line = text.simplified();
    const auto at = line.indexOf(wanted, 0, Qt::CaseInsensitive);
    if (at <= before)
        return line.left(shownText);
    const auto blank = line.indexOf(u' ', at - before);
    const auto from = blank >= 0 && blank < at ? blank + 1 : at;
    return u"…"_s + line.mid(from, shownText);
}

std::optional<HistoryLayout::Move> moveOf(const QKeyEvent& event)
{
    using Move = HistoryLayout::Move;
    switch (event.key()) {
    case Qt::Key_Left:
        return Move::Left;
    case Qt::Key_Right:
        return Move::Right;
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

HistoryGrid::HistoryGrid(const Themes& themes, HistoryStore& store, HistoryCatalogue& catalogue,
    TextOf textOf, QWidget* parent)
    : QAbstractScrollArea(parent)
    , m_themes(themes)
    , m_store(store)
    , m_catalogue(catalogue)
    , m_textOf(std::move(textOf))
{
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(u"Captures"_s);
    viewport()->setMouseTracking(true);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    m_lift.setStartValue(0.0);
    m_lift.setEndValue(1.0);
    m_lift.setDuration(int(Motion::hover.count()));
    connect(&m_lift, &QVariantAnimation::valueChanged, this, [this] {
        if (m_hovered != HistoryLayout::none)
            viewport()->update(seen(m_layout.card(m_hovered)).adjusted(0, -Space::tiny, 0, 0));
    });
    connect(&store, &HistoryStore::thumbnailLoaded, this, &HistoryGrid::arrived);
    connect(&themes, &Themes::changed, this, &HistoryGrid::adoptTheme);
}

void HistoryGrid::setHoverActions(QWidget* actions)
{
    m_hoverActions = actions;
    actions->setParent(viewport());
    actions->hide();
}

std::optional<HistoryItem> HistoryGrid::hovered() const
{
    return m_hovered == HistoryLayout::none ? std::nullopt
                                            : std::optional(m_catalogue.shown()[m_hovered]);
}

void HistoryGrid::refresh()
{
    hover(HistoryLayout::none);
    const auto [first, last] = m_layout.cardsWithin(top(), top() + viewport()->height());
    const bool isAtTop = top() == 0 || first == last;
    const QString anchor = isAtTop ? QString() : m_ids[first];
    const int offset = isAtTop ? 0 : m_layout.card(first).top() - top();
    const int currentBefore = m_selection.current();

    m_groups = dayGroups(m_catalogue.shown(), m_catalogue.calendar());
    m_ids.clear();
    for (const auto& item : m_catalogue.shown())
        m_ids.append(item.id);
    m_selection.follow(m_ids);
    layOut();
    const auto found = isAtTop ? -1 : m_ids.indexOf(anchor);
    if (found >= 0)
        verticalScrollBar()->setValue(m_layout.card(int(found)).top() - offset);
    if (m_selection.current() != currentBefore)
        tellCurrent();
    viewport()->update();
}

QList<HistoryItem> HistoryGrid::selected() const
{
    QList<HistoryItem> items;
    if (m_selection.count() > 0)
        for (const auto& item : m_catalogue.shown())
            if (m_selection.contains(item.id))
                items.append(item);
    return items;
}

void HistoryGrid::layOut()
{
    const Theme& theme = m_themes.current();
    QList<int> sizes;
    for (const auto& group : m_groups)
        sizes.append(int(group.items.size()));
    const auto lines
        = m_catalogue.isSearching() ? CardPainter::Lines::Two : CardPainter::Lines::One;
    m_layout = HistoryLayout(sizes,
        {viewport()->width(), Space::window, Space::group, leastWidth,
            CardPainter::height(theme, lines), theme.lineHeight(TextStyle::Title3) + Space::group});
    const int page = viewport()->height();
    verticalScrollBar()->setPageStep(page);
    verticalScrollBar()->setSingleStep(CardPainter::thumbnailHeight / 3);
    verticalScrollBar()->setRange(0, std::max(0, m_layout.height() - page));
}

void HistoryGrid::adoptTheme()
{
    m_pictures.clear();
    refresh();
}

int HistoryGrid::top() const
{
    return verticalScrollBar()->value();
}

QRect HistoryGrid::seen(QRect content) const
{
    return content.translated(0, -top());
}

bool HistoryGrid::viewportEvent(QEvent* event)
{
    if (event->type() == QEvent::Leave)
        hover(HistoryLayout::none);
    return QAbstractScrollArea::viewportEvent(event);
}

void HistoryGrid::resizeEvent(QResizeEvent*)
{
    if (m_layout.count() > 0)
        refresh();
}

void HistoryGrid::scrollContentsBy(int, int)
{
    hover(HistoryLayout::none);
    viewport()->update();
}

void HistoryGrid::paintEvent(QPaintEvent* event)
{
    const Theme& theme = m_themes.current();
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(event->rect(), theme.window);
    CardPainter cards(theme);
    cards.setWanted(m_catalogue.query());
    const int bottom = top() + viewport()->height();
    const auto [first, last] = m_layout.cardsWithin(top(), bottom);
    for (int index = first; index < last; ++index)
        if (seen(m_layout.card(index)).adjusted(-4, -4, 4, 4).intersects(event->rect()))
            paintCard(painter, cards, index);
    const auto [firstGroup, lastGroup] = m_layout.groupsWithin(top(), bottom);
    for (int group = firstGroup; group < lastGroup; ++group)
        cards.paintHeading(
            painter, seen(m_layout.heading(group, top())), m_groups[group].title, Space::window);
}

void HistoryGrid::paintCard(QPainter& painter, const CardPainter& cards, int index)
{
    const HistoryItem& item = m_catalogue.shown()[index];
    CardPainter::Card card;
    card.box = seen(m_layout.card(index));
    card.picture = picture(item, card.box);
    card.points = item.points();
    card.isGone = m_gone.contains(item.id);
    card.line = u"%1  •  %2 × %3"_s.arg(m_catalogue.calendar().time(item))
                    .arg(item.width)
                    .arg(item.height);
    card.found = foundIn(item);
    card.isSelected = m_selection.contains(item.id);
    card.hasFocus = hasFocus() && index == m_selection.current();
    if (index == m_hovered)
        card.lift = m_themes.current().reducedMotion ? 0 : m_lift.currentValue().toDouble();
    cards.paint(painter, card);
}

/// The text where the query is found; what is shortest, where there is a choice.
QString HistoryGrid::foundIn(const HistoryItem& item) const
{
    if (!m_catalogue.isSearching())
        return {};
    const QString& query = m_catalogue.query();
    const auto holds
        = [&query](const QString& text) { return text.contains(query, Qt::CaseInsensitive); };
    const QString file = item.path.mid(item.path.lastIndexOf(u'/') + 1);
    if (m_catalogue.find(item) == HistoryCatalogue::Found::InText)
        return around(m_textOf(item.id), query);
    if (holds(item.app) || item.cached)
        return item.app.isEmpty() ? u"—"_s : item.app;
    return holds(file) ? file : (item.app.isEmpty() ? file : item.app);
}

const QPixmap* HistoryGrid::picture(const HistoryItem& item, QRect box)
{
    if (const QPixmap* known = m_pictures.picture(item.id))
        return known;
    const auto thumbnail = m_store.thumbnail(item);
    if (!thumbnail || thumbnail->image.isNull())
        return nullptr;
    const QSize well = CardPainter::well(box).size() - QSize(2 * Space::tiny, 2 * Space::tiny);
    return &m_pictures.make(item.id, *thumbnail, well, devicePixelRatioF());
}

void HistoryGrid::arrived(const QString& id, const Thumbnail& thumbnail)
{
    m_pictures.forget(id);
    if (thumbnail.image.isNull())
        m_gone.insert(id);
    else
        m_gone.remove(id);
    const auto [first, last] = m_layout.cardsWithin(top(), top() + viewport()->height());
    for (int index = first; index < last; ++index)
        if (m_ids[index] == id)
            viewport()->update(seen(m_layout.card(index)));
}

void HistoryGrid::choose(int index, CardSelection::How how)
{
    m_selection.choose(m_ids, index, how);
    bringIntoView(index);
    tellCurrent();
    viewport()->update();
}

void HistoryGrid::bringIntoView(int index)
{
    const QRect card = m_layout.card(index);
    const int heading = m_layout.heading(m_layout.group(index), 0).height();
    if (card.top() - heading < top())
        verticalScrollBar()->setValue(card.top() - heading);
    else if (card.bottom() + Space::group > top() + viewport()->height())
        verticalScrollBar()->setValue(card.bottom() + Space::group - viewport()->height());
}

void HistoryGrid::hover(int index)
{
    if (index == m_hovered)
        return;
    const int before = std::exchange(m_hovered, index);
    for (const int changed : {before, index})
        if (changed >= 0 && changed < m_layout.count())
            viewport()->update(seen(m_layout.card(changed)).adjusted(0, -Space::tiny, 0, 0));
    const bool isOver = index != HistoryLayout::none;
    viewport()->setCursor(isOver ? Qt::PointingHandCursor : Qt::ArrowCursor);
    m_lift.stop();
    if (isOver)
        m_lift.start();
    if (!m_hoverActions)
        return;
    if (isOver) {
        const QRect well = CardPainter::well(seen(m_layout.card(index)));
        QRect place({}, m_hoverActions->sizeHint());
        place.moveCenter(well.center());
        place.moveBottom(well.bottom() - Space::related);
        m_hoverActions->setGeometry(place);
    }
    m_hoverActions->setVisible(isOver);
}

/// To those who hear what others see.
void HistoryGrid::tellCurrent()
{
    const int current = m_selection.current();
    if (current < 0) {
        setAccessibleDescription({});
        return;
    }
    const HistoryItem& item = m_catalogue.shown()[current];
    const auto& calendar = m_catalogue.calendar();
    setAccessibleDescription(
        u"%1, %2, %3; %4 of %5"_s
            .arg(item.app, calendar.title(calendar.day(item)), calendar.time(item))
            .arg(current + 1)
            .arg(m_layout.count()));
    QAccessibleEvent told(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&told);
}

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
    if (!m_selection.contains(m_ids[index]))
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
    Q_EMIT opened(m_catalogue.shown()[index]);
}

void HistoryGrid::keyPressEvent(QKeyEvent* event)
{
    const auto move = moveOf(*event);
    if (move && m_layout.count() > 0) {
        const bool extends = event->modifiers() & Qt::ShiftModifier;
        choose(m_layout.moved(m_selection.current(), *move, viewport()->height()),
            extends ? CardSelection::How::UpTo : CardSelection::How::Alone);
    } else if (event->matches(QKeySequence::SelectAll)) {
        m_selection.chooseAll(m_ids);
        viewport()->update();
    } else if (event->key() == Qt::Key_Space && m_selection.current() >= 0) {
        choose(m_selection.current(), CardSelection::How::Toggled);
    } else if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        && m_selection.current() >= 0) {
        Q_EMIT opened(m_catalogue.shown()[m_selection.current()]);
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
    if (!m_selection.contains(m_ids[index]))
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
    viewport()->update();
}

void HistoryGrid::focusOutEvent(QFocusEvent* event)
{
    QAbstractScrollArea::focusOutEvent(event);
    viewport()->update();
}
