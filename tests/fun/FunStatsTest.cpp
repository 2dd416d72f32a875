// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "fun/FunStats.h"

#include "fun/FunRules.h"
#include "tests/Soak.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gmock/gmock.h>

#include <array>
#include <limits>
#include <random>

using namespace Qt::StringLiterals;

namespace {

const QByteArray sample = R"({"total": 7, "night": 1, "early": 2, "texts": 3, "recordings": 0,
    "edits": 4, "memes": 5, "facesCovered": 6, "stickers": 8, "shares": 9, "xp": 9007199254740992,
    "bestStreak": 10, "days": {"2026-03-06": 2, "2026-03-07": 5}, "unlocked": ["first", "meme"],
    "petName": "Pix “ü” 🐣", "lastCapture": 794584800.125})";

QJsonObject sampleObject()
{
    return QJsonDocument::fromJson(sample).object();
}

bool isAccepted(const QString& key, const QJsonValue& value)
{
    auto object = sampleObject();
    object.insert(key, value); // Undefined removes.
    return FunStats::fromJson(QJsonDocument(object).toJson()).has_value();
}

} // namespace

TEST(FunStats, areOneMemberEachInTheFile)
{
    const auto stats = FunStats::fromJson(sample);
    ASSERT_TRUE(stats);
    EXPECT_EQ(stats->facesCovered, 6);
    EXPECT_EQ(stats->xp, FunStats::most);
    EXPECT_EQ(stats->days.value(u"2026-03-07"_s), 5);
    EXPECT_EQ(stats->unlocked, (QStringList {u"first"_s, u"meme"_s}));
    EXPECT_EQ(stats->petName, u"Pix “ü” 🐣"_s);
    EXPECT_EQ(stats->lastCapture, QDateTime(QDate(2026, 3, 7), QTime(14, 0, 0, 125), Qt::UTC));
    EXPECT_EQ(QJsonDocument::fromJson(stats->toJson()).object(), sampleObject());
    EXPECT_TRUE(stats->toJson().contains("\"xp\":9007199254740992"));

    const auto fresh = QJsonDocument::fromJson(FunStats().toJson()).object();
    EXPECT_EQ(fresh.value("petName"_L1), u"Pixie"_s);
    EXPECT_FALSE(fresh.contains("lastCapture"_L1));
    EXPECT_EQ(fresh.size(), sampleObject().size() - 1);
    EXPECT_EQ(FunStats::fromJson(FunStats().toJson()), FunStats());
}

TEST(FunStats, makeNoSenseWhereAMemberIsMissingOrOdd)
{
    const QStringList keys = sampleObject().keys();
    for (const QString& key : keys) {
        const bool isDate = key == "lastCapture"_L1;
        EXPECT_EQ(isAccepted(key, QJsonValue::Undefined), isDate) << qPrintable(key);
        EXPECT_EQ(isAccepted(key, QJsonValue::Null), isDate) << qPrintable(key);
        for (const QJsonValue& odd : {QJsonValue(true), QJsonValue(1e300),
                 QJsonValue(QJsonArray {1}), QJsonValue(QJsonObject {{u"key"_s, u"5"_s}})})
            EXPECT_FALSE(isAccepted(key, odd)) << qPrintable(key);
        EXPECT_EQ(isAccepted(key, u"5"_s), key == "petName"_L1) << qPrintable(key);
    }
    for (const double number : {-1.0, 0.5, double(FunStats::most) + 2}) {
        EXPECT_FALSE(isAccepted(u"total"_s, number));
        EXPECT_FALSE(isAccepted(u"days"_s, QJsonObject {{u"2026-03-07"_s, number}}));
        EXPECT_EQ(isAccepted(u"lastCapture"_s, number), number < 1e10);
    }
    EXPECT_TRUE(isAccepted(u"total"_s, 1e15));
    EXPECT_TRUE(isAccepted(u"unknown"_s, 1));
    EXPECT_TRUE(isAccepted(u"days"_s, QJsonObject {{u"someday"_s, 1}}));
    for (const QByteArray& text : {QByteArray(), "[" + sample + "]", sample + "}",
             sample.chopped(1), QByteArray(sample).replace("ü", "\xff")})
        EXPECT_FALSE(FunStats::fromJson(text)) << text.constData();
}

TEST(FunStats, whateverIsReadCanBeCountedOnWrittenAndReadAgain)
{
    static constexpr std::array tokens {"9007199254740992", "9007199254740993", "-1", "1e400", "0",
        "1e15", "null", "true", "[]", "{}", "\"\\ud800\"", "\"\\u0000\"", "{\"\":1}", "-0.0", ",",
        "9223372036854775807", "\"", "-63114076800", "1e-5"};
    const int rounds = soaked(4000);
    const QDateTime now(QDate(2026, 3, 7), QTime(3, 0), Qt::UTC);
    const FunRules::Random first = [](int) { return 0; };
    int read = 0;
    for (int round = 0; round < rounds; ++round) {
        std::mt19937 random(static_cast<unsigned>(round));
        const auto below = [&](qsizetype limit) { return qsizetype(random() % quint64(limit)); };
        QByteArray text = QJsonDocument(sampleObject()).toJson();
        for (qsizetype i = below(3); i >= 0; --i) {
            const auto place = below(text.size());
            const auto colon = text.indexOf(": ", place);
            const auto comma = text.indexOf(",\n", colon);
            if (below(3) && colon >= 0 && comma > colon) // A value, whole.
                text.replace(
                    colon + 2, comma - colon - 2, tokens[std::size_t(below(tokens.size()))]);
            else if (below(2))
                text[place] = char(random());
            else
                text.remove(place, 1 + below(4));
        }
        const auto stats = FunStats::fromJson(text);
        if (!stats)
            continue;
        ++read;
        const auto again = FunStats::fromJson(stats->toJson());
        ASSERT_TRUE(again) << round << ": " << text.constData();
        ASSERT_EQ(again->toJson(), stats->toJson()) << round << ": " << text.constData();
        ASSERT_EQ(again->lastCapture, stats->lastCapture) << round << ": " << text.constData();

        auto later = FunRules::captured(*stats, now, first).outcome.stats;
        for (const auto deed : {FunDeed::MemeAdded, FunDeed::Shared})
            later = FunRules::done(std::move(later), deed, std::numeric_limits<int>::max()).stats;
        later = FunRules::unlocked(std::move(later)).stats;
        ASSERT_TRUE(FunStats::fromJson(later.toJson())) << round << ": " << text.constData();
        ASSERT_LE(FunRules::streak(later, now.date()), later.days.size()) << round;
    }
    EXPECT_GT(read, rounds / 20) << "of what cannot be read, nothing is tried";
    EXPECT_LT(read, rounds * 19 / 20);
}
