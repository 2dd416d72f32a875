// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "fun/GalleryView.h"

#include "fun/AchievementCard.h"
#include "fun/PetCard.h"
#include "fun/StreakCalendarView.h"
#include "widgets/Accessible.h"
#include "widgets/Enlarged.h"
#include "widgets/TextLabel.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QVBoxLayout>

namespace {

constexpr int cardWidth = 160;
constexpr int usualWidth = 900; // Points, five columns of cards.

} // namespace

GalleryView::GalleryView(const Themes& themes, Fun& fun, QWidget* parent)
    : QScrollArea(parent)
    , m_themes(themes)
    , m_fun(fun)
    , m_pet(new PetCard(themes, fun))
    , m_calendar(new StreakCalendarView(themes))
    , m_count(new TextLabel(themes, TextStyle::Title3))
    , m_grid(new QGridLayout)
{
    Accessible::describe(*this, {QAccessible::Grouping});
    setAccessibleName(tr("Pet and achievements"));
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidgetResizable(true);
    setFocusPolicy(Qt::ClickFocus); // Nothing is marked until the keyboard is used.
    auto* content = new QWidget;
    auto* top = new QHBoxLayout;
    top->setSpacing(Space::inner);
    top->addWidget(m_pet, 1);
    top->addWidget(m_calendar);
    m_grid->setSpacing(Space::inner);
    for (const auto& achievement : Fun::all)
        m_cards.append(new AchievementCard(themes, achievement));
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(Space::window, Space::window, Space::window, Space::window);
    column->setSpacing(Space::group);
    column->addLayout(top);
    column->addWidget(m_count);
    column->addLayout(m_grid);
    column->addStretch();
    setWidget(content);
    connect(&fun, &Fun::statsChanged, this, &GalleryView::refresh);
    connect(&themes, &Themes::changed, this, &GalleryView::adoptTheme);
    adoptTheme();
    refresh();
    arrange(enlarged(usualWidth, themes.current()));
}

QSize GalleryView::sizeHint() const
{
    return {enlarged(usualWidth, m_themes.current()), widget()->sizeHint().height()};
}

void GalleryView::adoptTheme()
{
    QPalette colours = palette();
    colours.setColor(QPalette::Window, m_themes.current().window);
    setPalette(colours);
    viewport()->setPalette(colours);
    widget()->setPalette(colours);
}

void GalleryView::refresh()
{
    m_pet->refresh();
    m_calendar->setDays(
        StreakCalendar::days(m_fun.stats(), m_fun.date(), QLocale().firstDayOfWeek()),
        m_fun.streak(), m_fun.stats().bestStreak);
    int unlocked = 0;
    for (qsizetype i = 0; i < m_cards.size(); ++i) {
        m_cards[i]->setStats(m_fun.stats());
        unlocked += m_fun.stats().unlocked.contains(Fun::all[std::size_t(i)].id);
    }
    m_count->setText(tr("Achievements  •  %1 of %2").arg(unlocked).arg(m_cards.size()));
}

void GalleryView::arrange(int width)
{
    const int inner = width - 2 * Space::window;
    const int card = enlarged(cardWidth, m_themes.current());
    const int columns = std::max(1, (inner + Space::inner) / (card + Space::inner));
    if (columns == m_columns)
        return;
    for (int column = 0; column < m_columns; ++column)
        m_grid->setColumnStretch(column, 0);
    m_columns = columns;
    for (int i = 0; i < m_cards.size(); ++i)
        m_grid->addWidget(m_cards[i], i / columns, i % columns);
    for (int column = 0; column < columns; ++column)
        m_grid->setColumnStretch(column, 1);
}

void GalleryView::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    arrange(viewport()->width());
}

void GalleryView::showEvent(QShowEvent* event)
{
    QScrollArea::showEvent(event);
    refresh(); // It may be another day.
    setFocus();
}

int GalleryView::focused() const
{
    for (int i = 0; i < m_cards.size(); ++i)
        if (m_cards[i]->hasFocus())
            return i;
    return -1;
}

void GalleryView::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape || event->matches(QKeySequence::Close)) {
        window()->close();
        return;
    }
    const int right = isRightToLeft() ? -1 : 1;
    const QHash<int, int> steps {{Qt::Key_Left, -right}, {Qt::Key_Right, right},
        {Qt::Key_Up, -m_columns}, {Qt::Key_Down, m_columns}};
    const auto step = steps.constFind(event->key());
    const int at = focused();
    if (step == steps.cend() || at < 0)
        return QScrollArea::keyPressEvent(event);
    const int to = at + *step;
    if (to >= 0 && to < m_cards.size()) {
        m_cards[to]->setFocus();
        ensureWidgetVisible(m_cards[to]);
    }
}
