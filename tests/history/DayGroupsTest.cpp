// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "history/DayGroups.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QLocale american(u"en_US"_s), german(u"de_DE"_s);

HistoryItem at(const QDateTime& time)
{
    HistoryItem item;
    item.date = historyDate(time);
    return item;
}

DayCalendar calendarOf(const char* zone, QDate today, const QLocale& locale = american)
{
    return {QTimeZone(zone), locale, today};
}

QList<DayGroup> groupsOf(const QList<HistoryItem>& items, const DayCalendar& calendar)
{
    HistoryItems all;
    for (const auto& item : items)
        all << &item;
    return dayGroups(all, calendar);
}

QStringList titles(const QList<DayGroup>& groups)
{
    QStringList titles;
    for (const auto& group : groups)
        titles << u"%1: %2"_s.arg(group.title).arg(group.items.size());
    return titles;
}

} // namespace

TEST(DayGroupsTest, aDayIsThatOfTheUsersCalendarAndZone)
{
    struct Case {
        const char* zone;
        const char* time; // In UTC.
        QDate today;
        const QLocale& locale;
        QString title;
    };
    const QDate saturday(2026, 3, 7);
    const Case cases[] {
        {"Europe/Berlin", "2026-03-06T22:59:59Z", saturday, american, u"Yesterday"_s},
        {"Europe/Berlin", "2026-03-06T23:00:00Z", saturday, american, u"Today"_s},
        {"America/New_York", "2026-03-07T04:59:59Z", saturday, american, u"Yesterday"_s},
        {"America/New_York", "2026-03-07T05:00:00Z", saturday, american, u"Today"_s},
        {"Pacific/Kiritimati", "2026-03-06T10:00:00Z", saturday, american, u"Today"_s},
        // The clocks change that night: yesterday has 23 hours.
        {"Europe/Berlin", "2026-03-28T23:00:00Z", {2026, 3, 30}, american, u"Yesterday"_s},
        {"Europe/Berlin", "2026-03-28T22:59:00Z", {2026, 3, 30}, american,
            u"Saturday, March 28, 2026"_s},
        {"Europe/Berlin", "2026-03-05T12:00:00Z", saturday, german, u"Donnerstag, 5. März 2026"_s},
        {"UTC", "2026-03-08T00:00:00Z", saturday, american, u"Sunday, March 8, 2026"_s},
        {"UTC", "2025-03-07T12:00:00Z", saturday, american, u"Friday, March 7, 2025"_s},
    };
    for (const auto& each : cases) {
        const auto time = QDateTime::fromString(QString::fromLatin1(each.time), Qt::ISODate);
        const auto groups = groupsOf({at(time)}, calendarOf(each.zone, each.today, each.locale));
        EXPECT_EQ(titles(groups), QStringList {each.title + u": 1"_s}) << each.zone << each.time;
    }
}

TEST(DayGroupsTest, followTheOrderOfTheItems)
{
    const auto calendar = calendarOf("UTC", {2026, 3, 7});
    const QDateTime noon({2026, 3, 7}, {12, 0}, Qt::UTC);
    EXPECT_TRUE(groupsOf({}, calendar).isEmpty());
    // Somebody had set the clock back for a while.
    const QList<HistoryItem> items {at(noon.addSecs(60)), at(noon), at(noon.addDays(-1)),
        at(noon.addSecs(30)), at(noon.addDays(-1)), at(noon.addDays(-1).addSecs(-60))};
    EXPECT_EQ(titles(groupsOf(items, calendar)),
        QStringList({u"Today: 2"_s, u"Yesterday: 1"_s, u"Today: 1"_s, u"Yesterday: 2"_s}));
    HistoryItem senseless;
    senseless.date = 1e300;
    EXPECT_EQ(groupsOf({senseless, items[0]}, calendar).size(), 2);
}
