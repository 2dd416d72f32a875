// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "fun/FunStats.h"

#include <QList>

/// The days of the last weeks, and how busy each was.
namespace StreakCalendar {

constexpr int weeks = 18;
constexpr int strengths = 4; ///< Of days with captures.

struct Day {
    QDate date;
    qint64 captures = 0;
    int strength = 0; ///< 0 for none, else 1 to 4: 4 for the busiest day of all that are shown.

    bool operator==(const Day&) const = default;
};

/// From the first day of the first week up to today; seven days make a week.
/// @param first day of each week.
QList<Day> days(const FunStats& stats, QDate today, Qt::DayOfWeek first);

} // namespace StreakCalendar
