// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "update/UpdateRules.h"

#include <QDateTime>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <random>

using namespace Qt::StringLiterals;

namespace {

const QString digest(64, u'a');

QByteArray feed(const char* change = "")
{
    QByteArray text = R"({"version": "1.4", "date": "2026-01-02", "notes": ["One", "Two"],
        "mac": {"version": "1.4.2", "url": "https://pixmallow.example/P.dmg", "sha256": ")"
        + digest.toUtf8() + R"("}})";
    const QList<QByteArray> parts = QByteArray(change).split('>');
    return parts.size() == 2 ? text.replace(parts[0], parts[1]) : text;
}

QString refusalOf(const QByteArray& text)
{
    const auto read = UpdateRules::readFeed(text, u"mac"_s);
    return read ? u"none"_s : read.error().message;
}

} // namespace

TEST(UpdateRulesTest, comparesVersionsNumberByNumber)
{
    struct Case {
        QString a, b;
        int expected;
    };
    for (const auto& [a, b, expected] :
        {Case {u"1.10"_s, u"1.9"_s, 1}, {u"1.2"_s, u"1.2.0"_s, 0}, {u"2"_s, u"10"_s, -1},
            {u"1.0-beta"_s, u"1.0"_s, 0}, {u""_s, u"0"_s, 0}, {u"1..2"_s, u".1.2."_s, 0},
            {u"1.2.beta"_s, u"1.2"_s, 0}, {u"1.-1"_s, u"1"_s, -1}, {u"1. 3"_s, u"1"_s, 0},
            {u"1.٣"_s, u"1"_s, 0}, {u"99999999999999999999"_s, u"1"_s, -1}}) {
        EXPECT_EQ(UpdateRules::compare(a, b), expected) << qPrintable(a) << " " << qPrintable(b);
        EXPECT_EQ(UpdateRules::compare(b, a), -expected) << qPrintable(a) << " " << qPrintable(b);
    }
}

TEST(UpdateRulesTest, fetchesOverHttpsOrFromThisComputer)
{
    for (const auto& address : {u"https://pixmallow.example/x"_s, u"https://localhost"_s,
             u"http://localhost/x"_s, u"http://localhost:8080"_s, u"http://127.0.0.1:1/x?y#z"_s})
        EXPECT_TRUE(UpdateRules::isSafe(address)) << qPrintable(address);
    for (const auto& address : {u""_s, u"x"_s, u"/x"_s, u"//localhost/x"_s, u"https:"_s,
             u"https:///x"_s, u"HTTPS://pixmallow.example"_s, u"Http://localhost"_s,
             u"http://LOCALHOST"_s, u"http://localhost.example/"_s, u"http://example/localhost"_s,
             u"http://localhost@evil.example/"_s, u"http://localhost:x@evil.example/"_s,
             u"http://localhost\\@evil.example/"_s, u"http://127.0.0.1.evil.example"_s,
             u"http://127.1/"_s, u"http://[::1]/"_s, u"http:localhost"_s, u" https://x.example"_s,
             u"ftp://localhost/x"_s, u"file:///etc/passwd"_s, u"http://local\thost/"_s})
        EXPECT_FALSE(UpdateRules::isSafe(address)) << qPrintable(address);
}

TEST(UpdateRulesTest, readsAFeed)
{
    const auto read = UpdateRules::readFeed(feed(), u"mac"_s);
    ASSERT_TRUE(read && *read);
    EXPECT_EQ(**read,
        (UpdateInfo {u"1.4.2"_s, u"2026-01-02"_s, u"https://pixmallow.example/P.dmg"_s, digest,
            {u"One"_s, u"Two"_s}}));

    const auto of
        = [](const char* change) { return UpdateRules::readFeed(feed(change), u"mac"_s); };
    EXPECT_EQ((*of(R"("version": "1.4.2", >)"))->version, u"1.4");
    EXPECT_EQ((*of("aaaa>AAAA"))->sha256, digest);
    EXPECT_EQ((*of(R"("2026-01-02">2026)"))->date, u"");
    EXPECT_EQ((*of(R"("Two">2)"))->notes, QStringList());
    EXPECT_FALSE(*of("\"mac\">\"other\"")) << "not an error";
    EXPECT_FALSE(*UpdateRules::readFeed(R"({"mac": "no"})", u"mac"_s));
}

TEST(UpdateRulesTest, refusesAFeedThatIsIncompleteOrUnsafe)
{
    const QString incomplete = u"the update file is incomplete"_s;
    for (const char* change :
        {"\"1.4.2\">1.4", "\"url\">\"uri\"", "\"sha256\">\"sha\"", "aaaa>aaaaa", "aaaa>aaa",
            "https://pixmallow.example/P.dmg>http://[x", "\"https://pixmallow.example/P.dmg\">7"})
        EXPECT_EQ(refusalOf(feed(change)), incomplete) << change;
    EXPECT_EQ(refusalOf("[]"), incomplete);
    EXPECT_EQ(refusalOf(feed("https:>http:")), u"updates must use HTTPS");
    EXPECT_EQ(refusalOf(feed("https:>ftp:")), u"updates must use HTTPS");
    for (const char* broken : {"", "<html>", "{", "{} x"})
        EXPECT_NE(refusalOf(broken), u"none") << broken;
}

TEST(UpdateRulesTest, looksAgainAfterADay)
{
    const QDateTime now(QDate(2026, 3, 4), QTime(5, 6, 7), Qt::UTC);
    EXPECT_TRUE(UpdateRules::isDue({}, now));
    EXPECT_FALSE(UpdateRules::isDue(now.addSecs(-86'399), now));
    EXPECT_TRUE(UpdateRules::isDue(now.addSecs(-86'400), now));
}

TEST(UpdateRulesTest, namesFilesWithoutLeavingTheirFolder)
{
    EXPECT_EQ(UpdateRules::fileName(u"1.4.2"_s, u".dmg"_s), u"Pixmallow-1.4.2.dmg");
    EXPECT_EQ(UpdateRules::fileName(u"../../x y"_s, u".dmg"_s), u"Pixmallow-.._.._x_y.dmg");
}
