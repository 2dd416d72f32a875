// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "history/HistoryGrid.h"

#include "history/AccessibleCards.h"
#include "history/CardText.h"
#include "widgets/Accessible.h"
#include "widgets/Enlarged.h"
#include "widgets/Motion.h"

#include <QEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>

namespace {

constexpr int leastWidth = 200; // Of a card, in points.

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
    Accessible::describe(*this, {QAccessible::List, {}, std::make_shared<AccessibleCards>(*this)});
    setAccessibleName(tr("Captures"));
    viewport()->setMouseTracking(true);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    m_lift.setStartValue(0.0);
    m_lift.setEndValue(1.0);
    m_lift.setDuration(int(Motion::hover.count()));
    connect(&m_lift, &QVariantAnimation::valueChanged, this, [this] {
        if (m_hovered != HistoryLayout::none)
            viewport()->update(inked(m_hovered));
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
    return m_hovered == HistoryLayout::none ? std::nullopt : std::optional(item(m_hovered));
}

void HistoryGrid::refresh()
{
    hover(HistoryLayout::none);
    const int currentBefore = m_selection.current();

    m_groups = dayGroups(m_catalogue.shown(), m_catalogue.calendar());
    if (m_selection.current() >= 0)
        m_selection.follow(ids());
    layOut();
    returnToAnchor();
    Accessible::partsChanged(*this);
    if (m_selection.current() != currentBefore)
        Accessible::currentPartChanged(*this);
    viewport()->update();
}

/// With its ring, and lifted.
QRect HistoryGrid::inked(int index) const
{
    constexpr int around = Space::tiny;
    return seen(m_layout.card(index)).adjusted(-around, -around, around, around);
}

QStringList HistoryGrid::ids() const
{
    QStringList ids;
    for (const HistoryItem* each : m_catalogue.shown())
        ids.append(each->id);
    return ids;
}

/// Remembers what is seen at the top. The same card counts until somebody scrolls: were it another
/// one each time that rows are filled anew, what is seen would creep away.
void HistoryGrid::anchor()
{
    const auto [first, last] = m_layout.cardsWithin(top(), top() + viewport()->height());
    const bool isSomewhere = top() > 0 && first < last;
    m_anchor = isSomewhere ? item(first).id : QString();
    m_anchorTop = isSomewhere ? m_layout.card(first).top() - top() : 0;
}

void HistoryGrid::returnToAnchor()
{
    const auto found = m_anchor.isEmpty() ? -1 : ids().indexOf(m_anchor);
    if (found < 0)
        return anchor();
    const QScopedValueRollback returning(m_isReturning, true);
    verticalScrollBar()->setValue(m_layout.card(int(found)).top() - m_anchorTop);
}

QList<HistoryItem> HistoryGrid::selected() const
{
    QList<HistoryItem> items;
    if (m_selection.count() > 0)
        for (const HistoryItem* each : m_catalogue.shown())
            if (m_selection.contains(each->id))
                items.append(*each);
    return items;
}

void HistoryGrid::layOut()
{
    const std::pair fitted(viewport()->width(), devicePixelRatioF());
    if (std::exchange(m_fitted, fitted) != fitted)
        m_pictures.clear();
    const Theme& theme = m_themes.current();
    QList<int> sizes;
    for (const auto& group : m_groups)
        sizes.append(int(group.items.size()));
    const auto lines
        = m_catalogue.isSearching() ? CardPainter::Lines::Two : CardPainter::Lines::One;
    m_layout = HistoryLayout(sizes,
        {viewport()->width(), Space::window, Space::group, enlarged(leastWidth, theme),
            CardPainter::height(theme, lines), theme.lineHeight(TextStyle::Title3) + Space::group,
            layoutDirection()});
    const QScopedValueRollback returning(m_isReturning, true); // The range may cut it off.
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
    if (!m_isReturning)
        anchor();
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
        if (inked(index).intersects(event->rect()))
            paintCard(painter, cards, index);
    const auto [firstGroup, lastGroup] = m_layout.groupsWithin(top(), bottom);
    for (int group = firstGroup; group < lastGroup; ++group) {
        const QRect box = m_layout.heading(group, top());
        const bool isAtHome = box.top() == m_layout.heading(group, 0).top();
        cards.paintHeading(painter, seen(box), m_groups[group].title, Space::window,
            isAtHome ? CardPainter::Cards::StayBelow : CardPainter::Cards::PassBelow);
    }
}

void HistoryGrid::paintCard(QPainter& painter, const CardPainter& cards, int index)
{
    const HistoryItem& shown = item(index);
    CardPainter::Card card;
    card.box = seen(m_layout.card(index));
    card.picture = picture(shown, card.box);
    card.points = shown.points();
    card.isGone = m_gone.contains(shown.id);
    card.line = CardText::line(shown, m_catalogue.calendar());
    if (m_catalogue.isSearching())
        card.found = CardText::found(shown, m_catalogue, m_textOf);
    card.isSelected = m_selection.contains(shown.id);
    card.hasFocus = hasFocus() && index == m_selection.current();
    if (index == m_hovered)
        card.lift = m_themes.current().reducedMotion ? 0 : m_lift.currentValue().toDouble();
    cards.paint(painter, card);
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
        if (item(index).id == id)
            viewport()->update(inked(index));
}

void HistoryGrid::choose(int index, CardSelection::How how)
{
    m_selection.choose(ids(), index, how);
    bringIntoView(index);
    Accessible::currentPartChanged(*this);
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
            viewport()->update(inked(changed));
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
