// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "fun/Achievement.h"

#include <QList>

#include <array>
#include <functional>

/// What the pet says to a capture.
struct PetReaction {
    QString emoji {}; ///< The pet, as it looks now.
    QString line {};
    int xp = 0; ///< Points that the capture earned.

    bool operator==(const PetReaction&) const = default;
};

/// An achievement or a step of the pet's, to be shown to the user.
struct FunPopUp {
    QString emoji {};
    QString title {};
    QString text {};
    QString detail {}; ///< May be empty.

    bool operator==(const FunPopUp&) const = default;
};

/// What the user did, other than take a capture.
enum class FunDeed { TextCopied, EditorClosed, MemeAdded, FacesCovered, StickerDropped, Shared };

/// The rules of the playful layer: statistics in, new statistics and what is to be told out. A time
/// is read in the zone it comes in, and days are those of its calendar, however long they are.
namespace FunRules {

/// Any of 0 to limit − 1, all alike.
using Random = std::function<int(int limit)>;

struct Outcome {
    FunStats stats {};
    QList<FunPopUp> popUps {};
};

struct CaptureOutcome {
    Outcome outcome {};
    PetReaction reaction {};
};

/// In the order of the gallery, and of unlocking.
extern const std::array<Achievement, 15> achievements;

/// The key of a day in FunStats::days.
QString dayKey(QDate day);

/// Consecutive days with captures that end today or, as long as today has none, yesterday.
int streak(const FunStats& of, QDate today);

/// Counts a capture and gives the pet its points; unlocking is a step of its own.
CaptureOutcome captured(FunStats stats, const QDateTime& now, const Random& random);

/// Counts a deed, done some number of times at once, and gives the pet its points.
Outcome done(FunStats stats, FunDeed deed, int times);

/// More points for the pet, and at most one pop-up however far it grows.
Outcome fed(FunStats stats, qint64 xp);

/// Unlocks every achievement whose goal is reached.
Outcome unlocked(FunStats stats);

/// Back to the start with the same pet.
FunStats reset(const FunStats& stats);

/// What the pet says while nothing happens.
QString mood(const FunStats& stats, const QDateTime& now, const Random& random);
QString idleLine(const Random& random);

} // namespace FunRules
