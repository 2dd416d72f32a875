// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "fun/StreakCalendar.h"

#include "fun/FunRules.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(StreakCalendarTest, endsTodayAndBeginsWithAWholeWeek)
{
    for (const auto first : {Qt::Monday, Qt::Sunday, Qt::Saturday})
        for (QDate today(2026, 2, 20); today < QDate(2026, 3, 10); today = today.addDays(1)) {
            const auto days = StreakCalendar::days({}, today, first);
            EXPECT_EQ(days.last().date, today);
            EXPECT_EQ(days.first().date.dayOfWeek(), int(first));
            EXPECT_EQ(days.first().date.daysTo(today) + 1, days.size());
            EXPECT_EQ((days.size() + 6) / 7, StreakCalendar::weeks);
        }
}

TEST(StreakCalendarTest, strengthIsMeasuredByTheBusiestDayShown)
{
    const QDate today(2026, 3, 7);
    FunStats stats;
    stats.days.insert(FunRules::dayKey(today.addYears(-1)), 10'000); // Long ago.
    const auto strengthOf = [&](qint64 captures) {
        stats.days.insert(FunRules::dayKey(today), captures);
        return StreakCalendar::days(stats, today, Qt::Monday).last().strength;
    };
    EXPECT_EQ(strengthOf(0), 0);
    EXPECT_EQ(strengthOf(1), StreakCalendar::strengths);
    stats.days.insert(FunRules::dayKey(today.addDays(-1)), 40);
    const std::pair<qint64, int> expected[] {
        {1, 1}, {10, 1}, {11, 2}, {20, 2}, {21, 3}, {31, 4}, {40, 4}, {FunStats::most, 4}};
    for (const auto& [captures, strength] : expected)
        EXPECT_EQ(strengthOf(captures), strength) << captures;
}
