// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "history/DayGroups.h"

#include "base/Words.h"

#include <optional>

namespace {

/// Entries of one day follow one another, so each day is made out once: a zone takes its time.
class DayFinder final {
public:
    explicit DayFinder(const DayCalendar& calendar)
        : m_calendar(calendar)
    {
    }

    QDate day(const HistoryItem& item)
    {
        if (item.date >= m_begin && item.date < m_end)
            return m_day;
        m_day = m_calendar.day(item);
        m_begin = m_end = 0;
        if (m_day.isValid()) {
            m_begin = historyDate(m_day.startOfDay(m_calendar.zone));
            m_end = historyDate(m_day.addDays(1).startOfDay(m_calendar.zone));
        }
        return m_day;
    }

private:
    const DayCalendar& m_calendar;
    QDate m_day;
    double m_begin = 0, m_end = 0; ///< As entries have dates.
};

} // namespace

DayCalendar DayCalendar::ofUser()
{
    return {QTimeZone::systemTimeZone(), QLocale(), QDate::currentDate()};
}

QDate DayCalendar::day(const HistoryItem& item) const
{
    return item.time().toTimeZone(zone).date();
}

QString DayCalendar::title(QDate day) const
{
    if (day == today)
        return Words::tr("Today");
    if (day == today.addDays(-1))
        return Words::tr("Yesterday");
    return locale.toString(day, QLocale::LongFormat);
}

QString DayCalendar::time(const HistoryItem& item) const
{
    return locale.toString(item.time().toTimeZone(zone).time(), QLocale::ShortFormat);
}

QList<DayGroup> dayGroups(const HistoryItems& items, const DayCalendar& calendar)
{
    QList<DayGroup> groups;
    DayFinder days(calendar);
    std::optional<QDate> last;
    for (const HistoryItem* item : items) {
        const QDate day = days.day(*item);
        if (day != last)
            groups.append({calendar.title(day), {}});
        last = day;
        groups.last().items.append(item);
    }
    return groups;
}
