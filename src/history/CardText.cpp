// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "history/CardText.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int before = 24; // Letters shown before what was found, at most.
constexpr int most = 120; // More do not fit on a card.

} // namespace

QString CardText::line(const HistoryItem& item, const DayCalendar& calendar)
{
    return u"%1  •  %2 × %3"_s.arg(calendar.time(item)).arg(item.width).arg(item.height);
}

QString CardText::found(const HistoryItem& item, HistoryCatalogue& catalogue,
    const std::function<QString(const QString& id)>& textOf)
{
    const QString& query = catalogue.query();
    if (catalogue.find(item) == HistoryCatalogue::Found::InText)
        return around(textOf(item.id), query);
    const DayCalendar& calendar = catalogue.calendar();
    const QString file = item.path.mid(item.path.lastIndexOf(u'/') + 1);
    const QString date = calendar.locale.toString(calendar.day(item), QLocale::LongFormat);
    for (const QString& place : {item.appName(), file, date})
        if (searchable(place).contains(searchable(query)))
            return place;
    return HistoryCatalogue::wordsOf(item, calendar); // Across several of them.
}

QString CardText::around(const QString& text, const QString& wanted)
{
    const QString line = text.simplified();
    const auto at = line.indexOf(wanted, 0, Qt::CaseInsensitive);
    if (at <= before)
        return line.left(most);
    const auto blank = line.indexOf(u' ', at - before);
    const auto from = blank >= 0 && blank < at ? blank + 1 : at;
    return u"…"_s + line.mid(from, most);
}
