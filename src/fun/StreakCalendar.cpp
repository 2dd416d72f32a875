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
    qint64 most = 0;
    for (QDate date = begin; date <= today; date = date.addDays(1)) {
        days.append({date, stats.days.value(FunRules::dayKey(date))});
        most = std::max(most, days.last().captures);
    }
    for (Day& day : days) // Nobody counts that high in a day, but a file may say so.
        if (day.captures > 0)
            day.strength
                = std::max(1, int(double(day.captures) / double(most) * strengths + 0.999));
    return days;
}
