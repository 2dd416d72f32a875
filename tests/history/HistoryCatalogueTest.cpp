// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "history/CardText.h"

#include <gtest/gtest.h>

#include <random>

using namespace Qt::StringLiterals;

namespace {

const DayCalendar calendar {QTimeZone::utc(), QLocale(u"en_US"_s), QDate(2026, 3, 7)};

HistoryItem item(const QString& app, const QString& file)
{
    static int count = 0;
    const QDateTime time({2026, 2, 3}, {14, 5}, Qt::UTC);
    return {u"%1"_s.arg(++count, 36), historyDate(time.addSecs(-count)), u"/home/me/Café/"_s + file,
        640, 400, 1, app, false};
}

QList<HistoryItem> shown(const HistoryCatalogue& catalogue)
{
    QList<HistoryItem> items;
    for (const HistoryItem* each : catalogue.shown())
        items << *each;
    return items;
}

} // namespace

TEST(HistoryCatalogueTest, findsProgramFileAndDateInAnyCase)
{
    HistoryCatalogue catalogue(calendar);
    catalogue.setItems({item(u"Terminal"_s, u"ÜBER.png"_s), item({}, u"b.png"_s)});
    struct Case {
        QString query;
        qsizetype found;
    };
    const Case cases[] {{u""_s, 2}, {u"terMINal"_s, 1}, {u"über"_s, 1}, {u".PNG"_s, 2},
        {u"2026"_s, 2}, {u"tuesday"_s, 2}, {u"february 3"_s, 2}, {u"2:0"_s, 2}, {u"2:04 pm"_s, 2},
        {u"nal ü"_s, 1}, {u"café"_s, 0}, {u"monday"_s, 0}, {u"terminal 2026"_s, 0},
        {u"today"_s, 0}};
    for (const auto& each : cases) {
        catalogue.setQuery(each.query);
        EXPECT_EQ(catalogue.shown().size(), each.found) << each.query.toStdString();
    }
}

TEST(HistoryCatalogueTest, findsWhatCapturesSayAndShowsWhere)
{
    HistoryCatalogue catalogue(calendar);
    const auto read = item(u"Mail"_s, u"a.png"_s), other = item(u"Mail"_s, u"b.png"_s);
    catalogue.setItems({read, other});
    catalogue.setQuery(u"order 47"_s);
    EXPECT_TRUE(catalogue.shown().isEmpty());
    const QString text = u"Thank you for what you bought.\nYour ORDER\n4711 is on its way"_s;
    catalogue.addTexts({{read.id, searchable(text)}}); // It arrives while one looks for it.
    EXPECT_EQ(shown(catalogue), QList {read});
    const auto textOf = [&](const QString&) { return text; };
    EXPECT_EQ(CardText::found(read, catalogue, textOf),
        u"…what you bought. Your ORDER 4711 is on its way"_s);
    for (const auto& query : {u"mail"_s, u"a.png"_s, u"february"_s}) {
        catalogue.setQuery(query);
        EXPECT_TRUE(CardText::found(read, catalogue, textOf).contains(query, Qt::CaseInsensitive));
    }
    catalogue.setQuery(u"order"_s);
    catalogue.setItems({other});
    EXPECT_TRUE(catalogue.shown().isEmpty());
    catalogue.setItems({read, other}); // What it said went with it.
    EXPECT_TRUE(catalogue.shown().isEmpty());
}

// However somebody types, corrects and deletes, and whatever comes and goes meanwhile.
TEST(HistoryCatalogueTest, isTheSameAsLookingThroughAllOfThemAnew)
{
    std::mt19937 random(7);
    const auto any = [&](int limit) { return int(random() % unsigned(limit)); };
    const auto letters = [&](int count) {
        QString word;
        for (int i = 0; i < count; ++i)
            word += u"abAB "_s.at(any(5));
        return word;
    };
    HistoryCatalogue catalogue(calendar);
    QList<HistoryItem> items;
    QHash<QString, QByteArray> texts;
    QString query;
    for (int step = 0; step < 2000; ++step) {
        if (any(4) == 0 && !items.isEmpty())
            items.removeAt(any(int(items.size())));
        else if (any(3) == 0)
            items.prepend(item(letters(3), letters(6)));
        else if (any(6) == 0 && !items.isEmpty())
            items[any(int(items.size()))].path = u"/"_s + letters(6);
        if (any(3) == 0)
            catalogue.setItems(items);
        if (any(8) == 0 && !items.isEmpty()) {
            const QHash<QString, QByteArray> read {{items.first().id, searchable(letters(9))}};
            catalogue.setItems(items);
            catalogue.addTexts(read);
            texts.insert(read);
        }
        query = any(3) == 0 ? query.chopped(std::min<qsizetype>(1, query.size()))
                            : query + letters(1);
        query = query.left(3);
        catalogue.setItems(items);
        catalogue.setQuery(query);
        catalogue.prepare(any(3));
        QList<HistoryItem> expected;
        for (const auto& each : items)
            if (query.isEmpty() || texts.value(each.id).contains(searchable(query))
                || HistoryCatalogue::wordsOf(each, calendar).toLower().contains(query.toLower()))
                expected << each;
        ASSERT_EQ(shown(catalogue), expected) << step << query.toStdString();
    }
}
