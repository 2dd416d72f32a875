// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "fun/FunRules.h"

#include "base/Words.h"
#include "fun/Pet.h"

#include <algorithm>
#include <chrono>
#include <span>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int nightEnds = 5; // Hours.
constexpr int earlyEnds = 8;
constexpr int captureXp = 10;
constexpr int streakXp = 30;
constexpr int streakWorthKeeping = 3; // Days.
constexpr std::chrono::milliseconds missedAfter = 72h;

QString lateLine()
{
    return Words::tr("it's late… go to sleep");
}

struct Reward {
    qint64 FunStats::*counter;
    qint64 xp; // Each time.
};

Reward rewardFor(FunDeed deed)
{
    switch (deed) {
    case FunDeed::TextCopied:
        return {&FunStats::texts, 5};
    case FunDeed::EditorClosed:
        return {&FunStats::edits, 5};
    case FunDeed::MemeAdded:
        return {&FunStats::memes, 15};
    case FunDeed::FacesCovered:
        return {&FunStats::facesCovered, 3};
    case FunDeed::StickerDropped:
        return {&FunStats::stickers, 2};
    case FunDeed::Shared:
        break;
    }
    return {&FunStats::shares, 5};
}

/// Stops at the most that can be stored.
void increase(qint64& counter, qint64 by = 1)
{
    counter += std::clamp<qint64>(by, 0, FunStats::most - counter);
}

QString pick(std::span<const char* const> lines, const FunRules::Random& random)
{
    return Words::tr(lines[std::size_t(random(int(lines.size())))]);
}

qint64 bestDay(const FunStats& stats)
{
    const auto best = std::max_element(stats.days.begin(), stats.days.end());
    return best == stats.days.end() ? 0 : *best;
}

template <qint64 FunStats::*counter>
qint64 valueOf(const FunStats& stats)
{
    return stats.*counter;
}

} // namespace

constexpr std::array<Achievement, 15> FunRules::achievements {{
    {u"first", u"📸", QT_TRANSLATE_NOOP("Words", "First Snap"),
        QT_TRANSLATE_NOOP("Words", "Take your first screenshot"), 1, valueOf<&FunStats::total>},
    {u"snap50", u"😎", QT_TRANSLATE_NOOP("Words", "Snap Happy"),
        QT_TRANSLATE_NOOP("Words", "Take 50 screenshots"), 50, valueOf<&FunStats::total>},
    {u"lore", u"📚", QT_TRANSLATE_NOOP("Words", "Lore Keeper"),
        QT_TRANSLATE_NOOP("Words", "Take 1,000 screenshots"), 1000, valueOf<&FunStats::total>},
    {u"goblin", u"👺", QT_TRANSLATE_NOOP("Words", "Screenshot Goblin"),
        QT_TRANSLATE_NOOP("Words", "50 screenshots in one day"), 50, bestDay},
    {u"night", u"🦉", QT_TRANSLATE_NOOP("Words", "Night Owl"),
        QT_TRANSLATE_NOOP("Words", "25 captures between midnight and 5 am"), 25,
        valueOf<&FunStats::night>},
    {u"early", u"🐓", QT_TRANSLATE_NOOP("Words", "Early Bird"),
        QT_TRANSLATE_NOOP("Words", "10 captures between 5 and 8 am"), 10,
        valueOf<&FunStats::early>},
    {u"fire", u"🔥", QT_TRANSLATE_NOOP("Words", "On Fire"),
        QT_TRANSLATE_NOOP("Words", "Keep a 7-day streak"), 7, valueOf<&FunStats::bestStreak>},
    {u"unstoppable", u"⚡", QT_TRANSLATE_NOOP("Words", "Unstoppable"),
        QT_TRANSLATE_NOOP("Words", "Keep a 30-day streak"), 30, valueOf<&FunStats::bestStreak>},
    {u"text", u"🔤", QT_TRANSLATE_NOOP("Words", "Text Grabber"),
        QT_TRANSLATE_NOOP("Words", "Copy text from 10 captures"), 10, valueOf<&FunStats::texts>},
    {u"artist", u"🎨", QT_TRANSLATE_NOOP("Words", "Artist"),
        QT_TRANSLATE_NOOP("Words", "Edit 25 screenshots"), 25, valueOf<&FunStats::edits>},
    {u"meme", u"🐸", QT_TRANSLATE_NOOP("Words", "Meme Lord"),
        QT_TRANSLATE_NOOP("Words", "Make 10 memes"), 10, valueOf<&FunStats::memes>},
    {u"incognito", u"🥸", QT_TRANSLATE_NOOP("Words", "Incognito"),
        QT_TRANSLATE_NOOP("Words", "Cover 20 faces with emoji"), 20,
        valueOf<&FunStats::facesCovered>},
    {u"stickers", u"💥", QT_TRANSLATE_NOOP("Words", "Sticker Bomb"),
        QT_TRANSLATE_NOOP("Words", "Drop 50 stickers"), 50, valueOf<&FunStats::stickers>},
    {u"share", u"🐻", QT_TRANSLATE_NOOP("Words", "Share Bear"),
        QT_TRANSLATE_NOOP("Words", "Share 10 screenshots"), 10, valueOf<&FunStats::shares>},
    {u"parent", u"🐉", QT_TRANSLATE_NOOP("Words", "Pet Parent"),
        QT_TRANSLATE_NOOP("Words", "Raise your pet to level 5"), 5,
        [](const FunStats& stats) -> qint64 { return Pet::level(stats.xp); }},
}};

QString FunRules::dayKey(QDate day)
{
    return day.toString(Qt::ISODate);
}

int FunRules::streak(const FunStats& of, QDate today)
{
    const auto hasCaptures = [&](QDate day) { return of.days.contains(dayKey(day)); };
    QDate day = hasCaptures(today) ? today : today.addDays(-1);
    int count = 0;
    for (; count < of.days.size() && hasCaptures(day); day = day.addDays(-1))
        ++count;
    return count;
}

FunRules::CaptureOutcome FunRules::captured(
    FunStats stats, const QDateTime& now, const Random& random)
{
    const QDate today = now.date();
    const QString key = dayKey(today);
    const bool isFirstToday = !stats.days.contains(key);
    const int streakBefore = streak(stats, today);
    increase(stats.total);
    increase(stats.days[key]);
    const int hour = now.time().hour();
    if (hour < nightEnds)
        increase(stats.night);
    else if (hour < earlyEnds)
        increase(stats.early);
    stats.lastCapture = now.toUTC();
    const int streakNow = streakBefore + (isFirstToday ? 1 : 0);
    stats.bestStreak = std::max<qint64>(stats.bestStreak, streakNow);

    PetReaction reaction {{}, {}, captureXp};
    if (isFirstToday && streakNow > 1) {
        reaction.line = Words::tr("%1-day streak!").arg(streakNow);
        reaction.xp = streakXp;
    } else if (isFirstToday && streakBefore == 0 && stats.total >= 2) {
        reaction.line = Words::tr("welcome back");
    } else {
        reaction.line = hour < nightEnds ? lateLine() : pick(Pet::captureLines, random);
    }
    auto outcome = fed(std::move(stats), reaction.xp);
    const auto stage = Pet::stage(Pet::level(outcome.stats.xp));
    reaction.emoji = Pet::stageEmoji[stage].toString();
    return {std::move(outcome), std::move(reaction)};
}

FunRules::Outcome FunRules::done(FunStats stats, FunDeed deed, int times)
{
    const auto [counter, xp] = rewardFor(deed);
    increase(stats.*counter, times);
    return fed(std::move(stats), xp * times);
}

FunRules::Outcome FunRules::fed(FunStats stats, qint64 xp)
{
    const int levelBefore = Pet::level(stats.xp);
    increase(stats.xp, xp);
    Outcome outcome {std::move(stats)};
    const int level = Pet::level(outcome.stats.xp);
    if (level <= levelBefore)
        return outcome;
    const auto stage = Pet::stage(level);
    FunPopUp popUp {Pet::stageEmoji[stage].toString(), {}, {}, {}};
    if (stage != Pet::stage(levelBefore)) {
        popUp.title = Words::tr("Your pet evolved!");
        popUp.text = Words::tr("%1 is now a %2")
                         .arg(outcome.stats.petName, Words::tr(Pet::stageNames[stage]));
    } else {
        popUp.title = Words::tr("Level up!");
        popUp.text
            = Words::tr("%1 reached level %2").arg(outcome.stats.petName, QString::number(level));
    }
    outcome.popUps.append(popUp);
    return outcome;
}

FunRules::Outcome FunRules::unlocked(FunStats stats)
{
    Outcome outcome {std::move(stats)};
    for (const auto& achievement : achievements) {
        const QString id = achievement.id.toString();
        if (outcome.stats.unlocked.contains(id)
            || achievement.value(outcome.stats) < achievement.goal)
            continue;
        outcome.stats.unlocked.append(id);
        outcome.popUps.append({achievement.emoji.toString(), Words::tr("Achievement unlocked"),
            Words::tr(achievement.title), Words::tr(achievement.desc)});
    }
    return outcome;
}

FunStats FunRules::reset(const FunStats& stats)
{
    FunStats fresh;
    fresh.petName = stats.petName;
    return fresh;
}

QString FunRules::mood(const FunStats& stats, const QDateTime& now, const Random& random)
{
    if (stats.lastCapture && stats.lastCapture->msecsTo(now) > missedAfter.count())
        return Words::tr("missed you… take a screenshot?");
    if (stats.total == 0)
        return Words::tr("hatch me with your first screenshot");
    if (now.time().hour() < nightEnds)
        return lateLine();
    const int days = streak(stats, now.date());
    if (days < streakWorthKeeping)
        return idleLine(random);
    return Words::tr("%1-day streak, don't break it").arg(days);
}

QString FunRules::idleLine(const Random& random)
{
    return pick(Pet::idleLines, random);
}
