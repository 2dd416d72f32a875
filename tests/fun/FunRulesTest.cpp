// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "fun/FunRules.h"

#include "fun/Pet.h"

#include <QTimeZone>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

const FunRules::Random first = [](int) { return 0; };

FunStats withDays(const QStringList& days)
{
    FunStats stats;
    stats.total = days.size();
    for (const QString& day : days)
        stats.days.insert(day, 1);
    return stats;
}

QDateTime at(const QString& local, const QByteArray& zone = "UTC")
{
    const auto time = QDateTime::fromString(local, Qt::ISODate);
    return QDateTime(time.date(), time.time(), QTimeZone(zone));
}

QStringList textsOf(const QList<FunPopUp>& popUps)
{
    QStringList texts;
    for (const auto& popUp : popUps)
        texts << popUp.emoji + u'|' + popUp.title + u'|' + popUp.text + u'|' + popUp.detail;
    return texts;
}

} // namespace

TEST(FunRules, aPetGrowsAtItsPoints)
{
    struct Row {
        qint64 xp;
        int level;
        QString stage;
        QString next;
    };
    for (const auto& [xp, level, stage, next] : {
             Row {39, 1, u"Egg"_s, u"Evolves into Hatchling at level 2"_s},
             Row {40, 2, u"Hatchling"_s, u"Evolves into Chick at level 4"_s},
             Row {359, 3, u"Hatchling"_s, u"Evolves into Chick at level 4"_s},
             Row {360, 4, u"Chick"_s, u"Evolves into Wise Owl at level 7"_s},
             Row {1440, 7, u"Wise Owl"_s, u"Evolves into Legendary Dragon at level 12"_s},
             Row {4840, 12, u"Legendary Dragon"_s, u"Fully evolved"_s},
         }) {
        EXPECT_EQ(Pet::level(xp), level) << xp;
        EXPECT_EQ(QLatin1String(Pet::stageNames[Pet::stage(level)]), stage) << xp;
        EXPECT_EQ(Pet::nextStage(level), next) << xp;
    }
    for (qint64 n = 2; 40 * (n - 1) * (n - 1) <= FunStats::most; n += 1 + n / 50) {
        ASSERT_EQ(Pet::level(40 * (n - 1) * (n - 1)), n);
        ASSERT_EQ(Pet::level(40 * (n - 1) * (n - 1) - 1), n - 1);
    }
}

TEST(FunRules, feedingAnnouncesOnlyTheLevelReached)
{
    const auto fed = [](qint64 before, qint64 points) {
        FunStats stats;
        stats.xp = before;
        stats.petName = u"%2"_s;
        return textsOf(FunRules::fed(stats, points).popUps);
    };
    EXPECT_THAT(fed(0, 39), ElementsAre());
    EXPECT_THAT(fed(39, 1), ElementsAre(u"🐣|Your pet evolved!|%2 is now a Hatchling|"_s));
    EXPECT_THAT(fed(130, 30), ElementsAre(u"🐣|Level up!|%2 reached level 3|"_s));
    EXPECT_THAT(fed(0, 700), ElementsAre(u"🐥|Your pet evolved!|%2 is now a Chick|"_s));
    EXPECT_THAT(fed(700, -700), ElementsAre());
    EXPECT_THAT(fed(FunStats::most, 40), ElementsAre());
}

TEST(FunRules, aStreakLastsUntilTheEndOfTheDayAfter)
{
    struct Row {
        QStringList days;
        QDate today;
        int streak;
    };
    for (const auto& [days, today, streak] : {
             Row {{}, {2026, 3, 7}, 0},
             Row {{u"2026-03-07"_s}, {2026, 3, 7}, 1},
             Row {{u"2026-03-05"_s, u"2026-03-06"_s}, {2026, 3, 7}, 2},
             Row {{u"2026-03-04"_s, u"2026-03-05"_s}, {2026, 3, 7}, 0},
             Row {{u"2026-03-05"_s, u"2026-03-07"_s}, {2026, 3, 7}, 1},
             Row {{u"2025-12-31"_s, u"2026-01-01"_s}, {2026, 1, 1}, 2},
             Row {{u"2028-02-28"_s, u"2028-02-29"_s}, {2028, 3, 1}, 2},
             Row {{u"2027-02-28"_s, u"2027-03-01"_s}, {2027, 3, 1}, 2},
             Row {{u"2026-03-09"_s, u"2026-03-10"_s}, {2026, 3, 7}, 0}, // The clock was set back.
             Row {{u""_s, u"yesterday"_s, u"2026-3-7"_s}, {2026, 3, 7}, 0},
         })
        EXPECT_EQ(FunRules::streak(withDays(days), today), streak)
            << qPrintable(days.join(u' ')) << " on " << qPrintable(today.toString());
    EXPECT_LE(FunRules::streak(withDays({u""_s}), QDate(99999, 1, 1)), 1);
}

TEST(FunRules, thePetRemarksOnTheDayBeforeTheHour)
{
    struct Row {
        QStringList days;
        QString now;
        PetReaction reaction;
    };
    const QString late = u"it's late… go to sleep"_s;
    const QString six = u"2026-03-06"_s, seven = u"2026-03-07"_s;
    for (const auto& [days, now, reaction] : {
             Row {{}, u"2026-03-07T12:00:00"_s, {u"🥚"_s, u"ate that"_s, 10}},
             Row {{}, u"2026-03-07T04:59:59"_s, {u"🥚"_s, late, 10}},
             Row {{six}, u"2026-03-07T00:30:00"_s, {u"🥚"_s, u"2-day streak!"_s, 30}},
             Row {{six, seven}, u"2026-03-07T00:30:00"_s, {u"🥚"_s, late, 10}},
             Row {{six, seven}, u"2026-03-07T05:00:00"_s, {u"🥚"_s, u"ate that"_s, 10}},
             Row {{u"2026-03-04"_s}, u"2026-03-07T03:00:00"_s, {u"🥚"_s, u"welcome back"_s, 10}},
         }) {
        const auto captured = FunRules::captured(withDays(days), at(now), first);
        EXPECT_EQ(captured.reaction, reaction) << qPrintable(captured.reaction.line);
        EXPECT_EQ(captured.outcome.stats.xp, reaction.xp);
        EXPECT_EQ(captured.outcome.stats.lastCapture, at(now));
    }
    FunStats nearlyHatched;
    nearlyHatched.xp = 30;
    EXPECT_EQ(FunRules::captured(nearlyHatched, at(u"2026-03-07T12:00:00"_s), first).reaction.emoji,
        u"🐣"_s);
}

TEST(FunRules, countsTheHoursAndDaysOfTheLocalCalendar)
{
    FunStats stats;
    const auto capture = [&](const QDateTime& now) {
        stats = FunRules::captured(std::move(stats), now, first).outcome.stats;
        return FunRules::streak(stats, now.date());
    };
    for (int hour = 0; hour < 24; ++hour)
        capture(at(u"2026-03-06T00:59:59"_s).addSecs(hour * 3600));
    EXPECT_EQ(stats.night, 5);
    EXPECT_EQ(stats.early, 3);
    EXPECT_EQ(stats.days, (QMap<QString, qint64> {{u"2026-03-06"_s, 24}}));

    // Days of 23 and 25 hours, and one that has no midnight.
    for (const auto& [zone, day] :
        {std::pair("America/New_York", QDate(2026, 3, 6)),
            {"America/New_York", QDate(2026, 10, 30)}, {"America/Sao_Paulo", QDate(2018, 11, 2)}}) {
        stats = {};
        for (int i = 0; i < 5; ++i)
            EXPECT_EQ(
                capture(QDateTime(day.addDays(i), QTime(i % 2 ? 0 : 23, 30), QTimeZone(zone))),
                i + 1);
    }
    EXPECT_EQ(stats.days.lastKey(), u"2018-11-06"_s);

    // To the west over the date line: the day before, once more; the best streak stays.
    stats = {};
    const QDateTime tokyo = at(u"2026-03-07T01:00:00"_s, "Asia/Tokyo");
    capture(tokyo.addDays(-1));
    EXPECT_EQ(capture(tokyo), 2);
    EXPECT_EQ(capture(tokyo.addSecs(3600).toTimeZone(QTimeZone("America/Los_Angeles"))), 1);
    EXPECT_EQ(stats.lastCapture, tokyo.addSecs(3600));
    EXPECT_EQ(stats.bestStreak, 2);
    EXPECT_EQ(stats.days.value(u"2026-03-06"_s), 2);
    EXPECT_EQ(stats.xp, 10 + 30 + 10);
}

TEST(FunRules, deedsCountAsOftenAsDoneUpToTheMostThatCanBeStored)
{
    FunStats stats;
    stats.facesCovered = 4;
    stats.xp = 12;
    EXPECT_EQ(FunRules::done({}, FunDeed::FacesCovered, 4).stats, stats);
    EXPECT_EQ(FunRules::done(stats, FunDeed::FacesCovered, -4).stats, stats);
    stats.facesCovered = stats.xp = FunStats::most - 1;
    const auto full = FunRules::done(stats, FunDeed::FacesCovered, 4).stats;
    EXPECT_EQ(full.facesCovered, FunStats::most);
    EXPECT_EQ(full.xp, FunStats::most);
}

TEST(FunRules, achievementsUnlockInOrderAtTheirGoalAndOnce)
{
    FunStats stats;
    stats.xp = 639;
    stats.total = 49;
    stats.days = {{u"2025-01-01"_s, 50}, {u"2026-03-07"_s, 3}};
    stats.unlocked = {u"lore"_s}; // Its value dropped since.
    const auto unlocked = FunRules::unlocked(stats);
    EXPECT_THAT(unlocked.stats.unlocked, ElementsAre(u"lore"_s, u"first"_s, u"goblin"_s));
    EXPECT_THAT(textsOf(unlocked.popUps),
        ElementsAre(u"📸|Achievement unlocked|First Snap|Take your first screenshot"_s,
            u"👺|Achievement unlocked|Screenshot Goblin|50 screenshots in one day"_s));
    EXPECT_TRUE(FunRules::unlocked(unlocked.stats).popUps.isEmpty());
    stats.xp = 640;
    EXPECT_TRUE(FunRules::unlocked(stats).stats.unlocked.endsWith(u"parent"_s));
}

TEST(FunRules, theMoodFollowsNeglectThenHourThenStreak)
{
    const QDateTime noon = at(u"2026-03-07T12:00:00"_s);
    FunStats stats;
    const auto mood = [&](const QDateTime& now) { return FunRules::mood(stats, now, first); };
    EXPECT_EQ(mood(noon), u"hatch me with your first screenshot"_s);
    stats = withDays({u"2026-03-05"_s, u"2026-03-06"_s});
    EXPECT_EQ(mood(noon), u"feed me screenshots"_s);
    EXPECT_EQ(mood(at(u"2026-03-07T04:00:00"_s)), u"it's late… go to sleep"_s);
    stats.days.insert(u"2026-03-04"_s, 1);
    EXPECT_EQ(mood(noon), u"3-day streak, don't break it"_s);
    stats.lastCapture = noon.addDays(-3);
    EXPECT_EQ(mood(noon), u"3-day streak, don't break it"_s);
    EXPECT_EQ(mood(noon.addMSecs(1)), u"missed you… take a screenshot?"_s);
    stats.lastCapture = noon.addYears(1); // The clock was set back.
    EXPECT_EQ(mood(noon), u"3-day streak, don't break it"_s);
}

TEST(FunRules, namesAreCutWhereAReaderWould)
{
    EXPECT_EQ(Pet::acceptableName(u" \n\u2003\t "_s), u""_s);
    EXPECT_EQ(Pet::acceptableName(u"\u2028 Mo chi\u00a0\r\n"_s), u"Mo chi"_s);
    EXPECT_EQ(Pet::acceptableName(QString(30, u'a')), QString(24, u'a'));
    const QString family = u"👩‍👩‍👧e\u0301"_s;
    EXPECT_EQ(Pet::acceptableName(family.repeated(12)), family.repeated(12));
    EXPECT_EQ(Pet::acceptableName(family.repeated(13)), family.repeated(12));
}
