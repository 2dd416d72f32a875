// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "history/HistoryView.h"

#include "history/HistoryActions.h"
#include "history/HistoryGrid.h"
#include "history/TextIndex.h"
#include "widgets/EmptyState.h"
#include "widgets/GlassButton.h"
#include "widgets/Icons.h"
#include "widgets/Mirrored.h"
#include "widgets/Tile.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QStackedLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int preparedAtOnce = 200; // Entries, a millisecond or two.
constexpr auto lookAtCalendar = 20s;

} // namespace

HistoryView::HistoryView(const Means& means, QWidget* parent)
    : QWidget(parent)
    , m_means(means)
    , m_catalogue(means.calendar())
    , m_search(new QLineEdit)
    , m_grid(new HistoryGrid(means.themes, means.store, m_catalogue,
          [&texts = means.texts](const QString& id) { return texts.text(id); }))
    , m_noCaptures(new EmptyState(means.themes,
          {u"photo.on.rectangle.angled"_s, tr("No screenshots yet"),
              tr("Captures appear here as you take them."), tr("Capture Region")}))
    , m_noMatch(new EmptyState(
          means.themes, {u"magnifyingglass"_s, tr("No matches"), {}, tr("Clear Search")}))
    , m_pages(new QStackedLayout)
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(bar());
    column->addLayout(m_pages, 1);
    for (QWidget* page : {static_cast<QWidget*>(m_grid), static_cast<QWidget*>(m_noCaptures),
             static_cast<QWidget*>(m_noMatch)})
        m_pages->addWidget(page);
    m_grid->setHoverActions(hoverActions());
    connectGrid();
    connect(m_noCaptures, &EmptyState::actionWanted, this, &HistoryView::captureWanted);
    connect(m_noMatch, &EmptyState::actionWanted, m_search, &QLineEdit::clear);
    connect(&means.store, &HistoryStore::changed, this, &HistoryView::adoptItems);
    connect(&means.texts, &TextIndex::loaded, this, [this](const auto& texts) {
        m_catalogue.addTexts(texts);
        if (m_catalogue.isSearching())
            refresh();
    });
    connect(&means.themes, &Themes::changed, this, qOverload<>(&QWidget::update));
    m_preparing.callOnTimeout(this, [this] {
        if (!m_catalogue.prepare(preparedAtOnce))
            m_preparing.stop();
    });
    m_clock.setInterval(lookAtCalendar);
    m_clock.callOnTimeout(this, &HistoryView::followCalendar);
    m_clock.start();
    adoptItems();
}

QLayout* HistoryView::bar()
{
    const Theme& theme = m_means.themes.current();
    m_search->setPlaceholderText(tr("Search app, file or date"));
    m_search->setAccessibleName(m_search->placeholderText());
    m_search->setClearButtonEnabled(true);
    m_search
        ->addAction(Icons::icon(u"magnifyingglass"_s, theme.secondary), QLineEdit::LeadingPosition)
        ->setText(tr("Search"));
    if (auto* clear = m_search->findChild<QAction*>(u"_q_qlineeditclearaction"_s))
        clear->setText(tr("Clear Search")); // The toolkit leaves it nameless.
    m_search->setMinimumHeight(Extent::toolbar);
    m_search->installEventFilter(this);
    connect(m_search, &QLineEdit::textChanged, this, [this](const QString& query) {
        m_catalogue.setQuery(query);
        refresh();
    });
    auto* open = GlassButton::ofText(m_means.themes, tr("Open Folder"));
    open->setSymbol(u"folder"_s);
    connect(open, &QAbstractButton::clicked, this, [this] { m_means.actions.openFolder(); });
    auto* clear = GlassButton::ofText(m_means.themes, tr("Clear History"));
    clear->setSymbol(u"trash"_s);
    connect(clear, &QAbstractButton::clicked, this, [this] { m_means.actions.clear(*this); });
    m_clear = clear;
    auto* row = new QHBoxLayout;
    // Buttons bring room for the mark of the focus.
    row->setContentsMargins(mirrored(
        QMargins(Space::window, Space::group, Space::window - Space::tiny, Space::related), *this));
    row->setSpacing(0);
    row->addWidget(m_search, 1);
    row->addSpacing(Space::tiny);
    row->addWidget(open);
    row->addWidget(clear);
    return row;
}

QWidget* HistoryView::hoverActions()
{
    using Act = void (HistoryActions::*)(const HistoryItem&);
    auto* actions = new Tile(m_means.themes);
    auto* row = new QHBoxLayout(actions);
    row->setContentsMargins(Space::tiny, 0, Space::tiny, 0);
    row->setSpacing(0);
    const auto add = [&](const QString& symbol, const QString& help, auto act) {
        auto* button
            = GlassButton::ofSymbol(m_means.themes, symbol, help, GlassButton::Look::Plain);
        button->setFocusPolicy(Qt::NoFocus); // The keyboard has shorter ways.
        connect(button, &QAbstractButton::clicked, this, [this, act] {
            if (const auto item = m_grid->hovered())
                act(*item);
        });
        row->addWidget(button);
    };
    const auto one = [this](Act act) {
        return [this, act](const HistoryItem& item) { (m_means.actions.*act)(item); };
    };
    if (m_means.actions.canEdit())
        add(u"pencil"_s, tr("Open in Editor"), one(&HistoryActions::edit));
    add(u"doc.on.doc"_s, tr("Copy"),
        [this](const HistoryItem& item) { m_means.actions.copy({item}); });
    add(u"pin"_s, tr("Pin to Screen"), one(&HistoryActions::pin));
    return actions;
}

void HistoryView::connectGrid()
{
    connect(m_grid, &HistoryGrid::opened, this,
        [this](const HistoryItem& item) { m_means.actions.edit(item); });
    connect(m_grid, &HistoryGrid::menuWanted, this, &HistoryView::openMenu);
    connect(m_grid, &HistoryGrid::dragWanted, this,
        [this] { m_means.actions.drag(m_grid->selected(), *m_grid); });
    connect(m_grid, &HistoryGrid::keyUnused, this, [this](QKeyEvent* event) { useKey(*event); });
}

void HistoryView::setQuery(const QString& query)
{
    m_search->setText(query);
}

void HistoryView::adoptItems()
{
    m_catalogue.setItems(m_means.store.items());
    m_preparing.start(0);
    refresh();
}

void HistoryView::refresh()
{
    m_grid->refresh();
    m_clear->setEnabled(!m_catalogue.isEmpty());
    if (m_catalogue.isEmpty())
        m_pages->setCurrentWidget(m_noCaptures);
    else if (m_catalogue.shown().isEmpty())
        m_pages->setCurrentWidget(m_noMatch);
    else
        m_pages->setCurrentWidget(m_grid);
    m_noMatch->setText(tr("Nothing in your history matches “%1”.").arg(m_catalogue.query()));
}

void HistoryView::followCalendar()
{
    const DayCalendar calendar = m_means.calendar();
    if (calendar == m_catalogue.calendar())
        return;
    m_catalogue.setCalendar(calendar);
    refresh();
}

void HistoryView::openMenu(QPoint at)
{
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    m_means.actions.fill(*menu, m_grid->selected(), *this);
    menu->popup(at);
}

/// What is not of moving about among the cards.
void HistoryView::useKey(QKeyEvent& event)
{
    const auto selected = m_grid->selected();
    if (event.matches(QKeySequence::Copy)) {
        m_means.actions.copy(selected);
    } else if (event.key() == Qt::Key_Delete || event.key() == Qt::Key_Backspace) {
        m_means.actions.remove(selected, *this);
    } else if (!event.text().isEmpty() && event.text().at(0).isPrint()
        && !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier))) {
        m_search->setFocus();
        m_search->setText(m_search->text() + event.text());
    } else {
        return;
    }
    event.accept();
}

void HistoryView::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Find)) {
        m_search->setFocus(Qt::ShortcutFocusReason);
        m_search->selectAll();
    } else if (event->matches(QKeySequence::Close)) {
        window()->close();
    } else if (event->key() == Qt::Key_Escape) {
        if (m_search->text().isEmpty())
            window()->close();
        else
            m_search->clear();
    } else {
        QWidget::keyPressEvent(event);
    }
}

bool HistoryView::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_search && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        const bool goesToCards
            = key == Qt::Key_Down || key == Qt::Key_Return || key == Qt::Key_Enter;
        if (goesToCards && m_pages->currentWidget() == m_grid) {
            m_grid->setFocus();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void HistoryView::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    followCalendar();
    m_search->setFocus();
    m_means.texts.load();
}

void HistoryView::paintEvent(QPaintEvent*)
{
    QPainter(this).fillRect(rect(), m_means.themes.current().window);
}
