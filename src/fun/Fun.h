// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Prefs.h"
#include "fun/FunRules.h"
#include "fun/StatsFile.h"

#include <QObject>
#include <QQueue>

/// What the playful layer asks of the world.
struct FunSurroundings {
    std::function<QDateTime()> now; ///< In the zone whose days and hours count.
    FunRules::Random random;

    static FunSurroundings ofUser();
};

/// Counts captures and other deeds, unlocks achievements and raises the pet. It shows nothing:
/// whoever shows the pet, its reactions and the pop-ups listens. What has been counted is in
/// stats.json in the data folder; where that cannot be written, it holds until the program ends.
///
/// Lives on the main thread.
class Fun final : public QObject {
    Q_OBJECT

public:
    static constexpr const auto& all = FunRules::achievements;

    /// Reads the statistics. Comes after the history, which may have to move the data folder first.
    Fun(const Folders& folders, const Prefs& prefs,
        FunSurroundings surroundings = FunSurroundings::ofUser());
    ~Fun() override; ///< Waits until what was counted is on the disk.

    static Fun& shared(); ///< The one that install() was called on.
    void install();

    /// Counts a capture; the pet reacts to it.
    void capture();

    /// Counts a deed, done some number of times at once.
    void record(FunDeed deed, int times = 1);

    const FunStats& stats() const { return m_stats; }
    int hop() const { return m_hop; } ///< Grows by one with each capture.

    /// To the latest capture. Whoever shows it takes it, so that it is shown once.
    const std::optional<PetReaction>& lastReaction() const { return m_lastReaction; }
    std::optional<PetReaction> takeReaction();

    /// The next pop-up to show, in the order they came; nothing when all were shown.
    std::optional<FunPopUp> takePopUp();

    QDate date() const; ///< Today.
    int level() const;
    QString stageName() const;
    QString petEmoji() const;
    QString nextStage() const; ///< What comes next, as a sentence.
    qint64 today() const; ///< Captures.
    int streak() const; ///< Days.
    QString mood() const; ///< Said while idle; may be another one each time.
    QString randomLine() const;

    /// Without blanks around, at most 24 characters; ignored where nothing is left.
    void rename(const QString& name);
    void reset(); ///< All but the pet's name.
    void save();
    void flush(); ///< Waits for what save() began.

Q_SIGNALS:
    void statsChanged();
    void hopped(int hop);
    void reacted(const PetReaction& reaction);
    void popUpQueued(); ///< Show it now, or when the one that shows is gone.

private:
    void adopt(FunRules::Outcome outcome);
    void finish();

    const Prefs& m_prefs;
    const FunSurroundings m_surroundings;
    StatsFile m_file;
    FunStats m_stats;
    int m_hop = 0;
    std::optional<PetReaction> m_lastReaction;
    QQueue<FunPopUp> m_popUps;
};
