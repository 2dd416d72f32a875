// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "history/HistoryIndex.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

namespace {

const QByteArray entry
    = R"({"id":"A","date":700000000.5,"path":"/p/ä\"\\.png","width":2880,"height":1800,"scale":2,"app":"","cached":false})";

/// The entry with one piece of its text replaced.
QByteArray with(const QByteArray& before, const QByteArray& after)
{
    EXPECT_TRUE(entry.contains(before));
    return '[' + QByteArray(entry).replace(before, after) + ']';
}

} // namespace

TEST(HistoryIndexTest, writesWhatItReadByteByByte)
{
    for (const QByteArray& text :
        {QByteArray("[]"), '[' + entry + ']', '[' + entry + ',' + entry + ']', with("0.5", "0.123"),
            with("700000000.5", "-1"), with(":2,", ":1.3333333333333333,"),
            with("\"A\"", "\"\\u0000\""), with("\"app\":\"\"", "\"app\":\"日本 🙂\""),
            with("false",
                R"(false,"tags":["a",{"b":[]},null,true,1.50e-7],"big":123456789012345678901234567890)"),
            with("false", R"(true,"":{"id":[1],"cached":{}})")}) {
        const auto items = HistoryIndex::parse(text);
        ASSERT_TRUE(items) << text.constData();
        EXPECT_EQ(HistoryIndex::toJson(*items).toStdString(), text.toStdString());
    }
    const auto items = HistoryIndex::parse(with("2880", " 2.88e3 ").replace("false", "false \n"));
    ASSERT_TRUE(items);
    EXPECT_EQ(HistoryIndex::toJson(*items), '[' + entry + ']');
    const HistoryItem expected {u"A"_s, 700000000.5, u"/p/ä\"\\.png"_s, 2880, 1800, 2, {}, false};
    EXPECT_EQ(items->value(0), expected);
    EXPECT_EQ(
        items->value(0).time(), QDateTime(QDate(2023, 3, 8), QTime(20, 26, 40, 500), Qt::UTC));
    EXPECT_EQ(items->value(0).points(), QSizeF(1440, 900));
}

TEST(HistoryIndexTest, takesNothingFromATextThatIsNoIndex)
{
    for (const QByteArray& text :
        {QByteArray(), QByteArray("null"), QByteArray("7"), entry, QByteArray("["), '[' + entry,
            '[' + entry + ",]", '[' + entry + "]x", '[' + entry + ",7]", '[' + entry + ",[]]",
            '[' + entry + ",null]", '[' + entry + ",true]", '[' + entry + ",\"A\"]",
            QByteArray("[{}]"), '[' + entry + "]" + QByteArray(1, '\0'), with("\"id\":\"A\",", ""),
            with(",\"cached\":false", ""), with("\"A\"", "7"), with("false", "0"),
            with("false", "null"), with("2880", "\"2880\""), with("2880", "28.5"),
            with("2880", "3000000000"), with("700000000.5", "1e999"), with("700000000.5", "[]"),
            with("\"\"", "{\"app\":\"\"}"), with("ä", "\xff"), with("\"app\"", "\"App\""),
            with("false", "false,\"x\":[}"), with("1800", "01800"),
            with("false", R"(false,"x":"\udc00")"), with("false", R"(false,"x":{"\udc00":1})"),
            QByteArray(1'000'000, '['),
            '[' + QByteArray(entry).chopped(1) + ",\"x\":" + QByteArray(1'000'000, '[')})
        EXPECT_FALSE(HistoryIndex::parse(text)) << text.left(300).constData();

    const QByteArray deep(100'000, '['), up(100'000, ']');
    const QByteArray nested = with("false", "false,\"x\":" + deep + up);
    const auto items = HistoryIndex::parse(nested);
    ASSERT_TRUE(items);
    EXPECT_EQ(HistoryIndex::toJson(*items), nested);
}
