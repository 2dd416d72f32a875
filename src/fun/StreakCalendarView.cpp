// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "fun/StreakCalendarView.h"

#include "base/Words.h"
#include "widgets/Contrast.h"
#include "widgets/Mirrored.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int side = 14; // Points of a dot.
constexpr int step = side + Space::tiny;
constexpr double todayRing = 1.5;
constexpr std::array<double, StreakCalendar::strengths + 1> tones {0, 0.3, 0.52, 0.76, 1};

/// Where the week of a day begins, in points from the starting side; the days count from 0.
int columnOf(int day)
{
    return Space::group + day / 7 * step;
}

} // namespace

StreakCalendarView::StreakCalendarView(const Themes& themes, QWidget* parent)
    : Tile(themes, parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void StreakCalendarView::setDays(const QList<StreakCalendar::Day>& days, int streak, qint64 best)
{
    m_days = days;
    m_title = streak > 0 ? tr("%n-day streak", nullptr, streak) : tr("No streak yet");
    m_detail = best > 0
        ? (best == 1 ? tr("Longest: 1 day") : tr("Longest: %Ln days", nullptr, Words::count(best)))
        : tr("A capture a day keeps it going");
    setAccessibleName(m_title + u". "_s + m_detail);
    updateGeometry();
    update();
}

/// Large letters have no room for both on one line.
bool StreakCalendarView::isDetailBelow() const
{
    const int title = QFontMetrics(theme().font(TextStyle::Headline)).horizontalAdvance(m_title);
    const int detail = QFontMetrics(theme().font(TextStyle::Callout)).horizontalAdvance(m_detail);
    return title + Space::related + detail > sizeOfDots().width();
}

QSize StreakCalendarView::sizeOfDots() const
{
    return {StreakCalendar::weeks * step - Space::tiny, 7 * step - Space::tiny};
}

int StreakCalendarView::dotsTop() const
{
    const int lines = isDetailBelow() ? 2 : 1;
    return Space::group + lines * theme().lineHeight(TextStyle::Headline) + Space::related
        + theme().lineHeight(TextStyle::Caption) + Space::tiny;
}

QSize StreakCalendarView::sizeHint() const
{
    return {
        2 * Space::group + sizeOfDots().width(), dotsTop() + sizeOfDots().height() + Space::group};
}

QRectF StreakCalendarView::dot(int day) const
{
    return mirrored(QRectF(columnOf(day), dotsTop() + day % 7 * step, side, side), *this);
}

void StreakCalendarView::paintEvent(QPaintEvent* event)
{
    Tile::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintTitle(painter);
    paintMonths(painter);
    for (int day = 0; day < m_days.size(); ++day)
        paintDot(painter, day);
}

void StreakCalendarView::paintTitle(QPainter& painter) const
{
    const QRect line(Space::group, Space::group, width() - 2 * Space::group,
        theme().lineHeight(TextStyle::Headline));
    painter.setFont(theme().font(TextStyle::Headline));
    painter.setPen(theme().text);
    painter.drawText(line, int(startSide() | Qt::AlignVCenter), m_title);
    painter.setFont(theme().font(TextStyle::Callout));
    painter.setPen(theme().secondary);
    if (isDetailBelow())
        painter.drawText(
            line.translated(0, line.height()), int(startSide() | Qt::AlignVCenter), m_detail);
    else
        painter.drawText(line, int(endSide() | Qt::AlignVCenter), m_detail);
}

/// Over the weeks that they begin in; the last weeks have no room for a name.
void StreakCalendarView::paintMonths(QPainter& painter) const
{
    const int height = theme().lineHeight(TextStyle::Caption);
    painter.setFont(theme().font(TextStyle::Caption));
    for (int day = 0; day + 14 < m_days.size(); day += 7) {
        const QDate date = m_days[day].date;
        const QRectF place(columnOf(day), dotsTop() - Space::tiny - height, 3.0 * step, height);
        if (date.day() <= (day == 0 ? 14 : 7))
            painter.drawText(mirrored(place, *this), int(startSide() | Qt::AlignVCenter),
                m_locale.standaloneMonthName(date.month(), QLocale::ShortFormat));
    }
}

void StreakCalendarView::paintDot(QPainter& painter, int day) const
{
    constexpr double round = side / 3.0;
    const double tone = tones[std::size_t(m_days[day].strength)];
    painter.setPen(Qt::NoPen);
    painter.setBrush(
        tone == 0 ? theme().fill : Contrast::mixed(theme().window, theme().accent, tone));
    painter.drawRoundedRect(dot(day), round, round);
    if (day + 1 < m_days.size())
        return;
    painter.setBrush(Qt::NoBrush); // Today.
    painter.setPen(QPen(theme().text, todayRing));
    painter.drawRoundedRect(dot(day).adjusted(-1, -1, 1, 1), round, round);
}

QString StreakCalendarView::told(const StreakCalendar::Day& day) const
{
    const QString date = m_locale.toString(day.date, QLocale::LongFormat);
    if (day.captures == 0)
        return tr("No captures on %1").arg(date);
    return day.captures == 1
        ? tr("1 capture on %1").arg(date)
        : tr("%Ln captures on %1", nullptr, Words::count(day.captures)).arg(date);
}

bool StreakCalendarView::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return Tile::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    for (int day = 0; day < m_days.size(); ++day)
        if (dot(day).adjusted(-2, -2, 2, 2).contains(help->pos()))
            QToolTip::showText(help->globalPos(), told(m_days[day]), this, dot(day).toRect());
    return true;
}
