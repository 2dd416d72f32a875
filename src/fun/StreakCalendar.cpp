// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "fun/StreakCalendar.h"

#include "fun/FunRules.h"

#include <algorithm>

QList<StreakCalendar::Day> StreakCalendar::days(
    const FunStats& stats, QDate today, Qt::DayOfWeek first)
{
    const int intoWeek = (today.dayOfWeek() - int(first) + 7) % 7;
    const QDate begin = today.addDays(-intoWeek - 7 * (weeks - 1));
    QList<Day> days;
    qint64 most = 1;
    for (QDate date = begin; date <= today; date = date.addDays(1)) {
        days.append({date, stats.days.value(FunRules::dayKey(date))});
        most = std::max(most, days.last().captures);
    }
    for (Day& day : days)
        if (day.captures > 0) // Rounded up; FunStats::most times four still is a number.
            day.strength = int((day.captures * strengths + most - 1) / most);
    return days;
}
