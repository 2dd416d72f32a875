// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "fun/Fun.h"

#include "base/Words.h"
#include "fun/Pet.h"

#include <QRandomGenerator>

namespace {

Fun* installed = nullptr;

} // namespace

FunSurroundings FunSurroundings::ofUser()
{
    return {[] { return QDateTime::currentDateTime(); },
        [](int limit) { return QRandomGenerator::global()->bounded(limit); }};
}

Fun::Fun(const Folders& folders, const Prefs& prefs, FunSurroundings surroundings)
    : m_prefs(prefs)
    , m_surroundings(std::move(surroundings))
    , m_file(folders)
    , m_stats(m_file.load().value_or(FunStats()))
{
}

Fun::~Fun()
{
    if (installed == this)
        installed = nullptr;
}

Fun& Fun::shared()
{
    Q_ASSERT(installed);
    return *installed;
}

void Fun::install()
{
    installed = this;
}

void Fun::capture()
{
    auto [outcome, reaction]
        = FunRules::captured(std::move(m_stats), m_surroundings.now(), m_surroundings.random);
    m_lastReaction = reaction;
    ++m_hop;
    adopt(std::move(outcome));
    Q_EMIT reacted(reaction);
    Q_EMIT hopped(m_hop);
    finish();
}

void Fun::record(FunDeed deed, int times)
{
    adopt(FunRules::done(std::move(m_stats), deed, times));
    finish();
}

void Fun::finish()
{
    adopt(FunRules::unlocked(std::move(m_stats)));
    save();
    Q_EMIT statsChanged();
}

/// Takes the statistics back from a rule, which they were moved into: the map of days is long.
void Fun::adopt(FunRules::Outcome outcome)
{
    m_stats = std::move(outcome.stats);
    if (outcome.popUps.isEmpty() || !m_prefs.get(Prefs::keys.achievementToasts))
        return;
    m_popUps.append(outcome.popUps);
    Q_EMIT popUpQueued();
}

std::optional<PetReaction> Fun::takeReaction()
{
    return std::exchange(m_lastReaction, std::nullopt);
}

std::optional<FunPopUp> Fun::takePopUp()
{
    return m_popUps.isEmpty() ? std::nullopt : std::optional(m_popUps.dequeue());
}

QDate Fun::date() const
{
    return m_surroundings.now().date();
}

int Fun::level() const
{
    return Pet::level(m_stats.xp);
}

QString Fun::stageName() const
{
    return Words::tr(Pet::stageNames[Pet::stage(level())]);
}

QString Fun::petEmoji() const
{
    return Pet::stageEmoji[Pet::stage(level())].toString();
}

QString Fun::nextStage() const
{
    return Pet::nextStage(level());
}

qint64 Fun::today() const
{
    return m_stats.days.value(FunRules::dayKey(date()));
}

int Fun::streak() const
{
    return FunRules::streak(m_stats, date());
}

QString Fun::mood() const
{
    return FunRules::mood(m_stats, m_surroundings.now(), m_surroundings.random);
}

QString Fun::randomLine() const
{
    return FunRules::idleLine(m_surroundings.random);
}

void Fun::rename(const QString& name)
{
    const QString acceptable = Pet::acceptableName(name);
    if (acceptable.isEmpty())
        return;
    m_stats.petName = acceptable;
    save();
    Q_EMIT statsChanged();
}

void Fun::reset()
{
    m_stats = FunRules::reset(m_stats);
    save();
    Q_EMIT statsChanged();
}

void Fun::save()
{
    m_file.save(m_stats);
}

void Fun::flush()
{
    m_file.flush();
}
