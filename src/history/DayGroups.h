// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "history/HistoryItem.h"

#include <QDate>
#include <QLocale>
#include <QTimeZone>

/// The calendar, zone and language that entries are shown and found by, on one day.
struct DayCalendar {
    QTimeZone zone;
    QLocale locale;
    QDate today;

    static DayCalendar ofUser(); ///< As it is now.

    QDate day(const HistoryItem& item) const; ///< Null where no calendar has it.
    QString title(QDate day) const; ///< "Today", "Yesterday" or the whole date.
    QString time(const HistoryItem& item) const; ///< Of the day, short.

    bool operator==(const DayCalendar& other) const
    {
        return today == other.today && zone == other.zone && locale == other.locale;
    }
};

/// Some entries of a list. To have copies of thousands takes longer than to find them.
using HistoryItems = QList<const HistoryItem*>;

/// Entries of one day that follow one another.
struct DayGroup {
    QString title;
    HistoryItems items;
};

/// In the order of the items.
QList<DayGroup> dayGroups(const HistoryItems& items, const DayCalendar& calendar);
