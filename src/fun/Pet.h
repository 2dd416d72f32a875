// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Words.h"

#include <QStringView>

#include <array>

/// The pet: how it grows with its experience points, and what it says.
namespace Pet {

// Stage by stage: the level it begins at, its name and how it looks.
inline constexpr std::array<int, 5> stageAt {1, 2, 4, 7, 12};
inline constexpr std::array<const char*, 5> stageNames {QT_TRANSLATE_NOOP("Words", "Egg"),
    QT_TRANSLATE_NOOP("Words", "Hatchling"), QT_TRANSLATE_NOOP("Words", "Chick"),
    QT_TRANSLATE_NOOP("Words", "Wise Owl"), QT_TRANSLATE_NOOP("Words", "Legendary Dragon")};
inline constexpr std::array<QStringView, 5> stageEmoji {u"🥚", u"🐣", u"🐥", u"🦉", u"🐉"};

// What it says; in English, as the names above, for Words::tr().
inline constexpr std::array<const char*, 12> captureLines {QT_TRANSLATE_NOOP("Words", "ate that"),
    QT_TRANSLATE_NOOP("Words", "caught in 4K"),
    QT_TRANSLATE_NOOP("Words", "certified screenshot moment"),
    QT_TRANSLATE_NOOP("Words", "that's going in the lore"), QT_TRANSLATE_NOOP("Words", "W capture"),
    QT_TRANSLATE_NOOP("Words", "pixel perfect, bestie"),
    QT_TRANSLATE_NOOP("Words", "main character energy"),
    QT_TRANSLATE_NOOP("Words", "saved for the receipts"), QT_TRANSLATE_NOOP("Words", "slay"),
    QT_TRANSLATE_NOOP("Words", "no thoughts, just pixels"),
    QT_TRANSLATE_NOOP("Words", "it's giving evidence"),
    QT_TRANSLATE_NOOP("Words", "core memory unlocked")};

inline constexpr std::array<const char*, 8> idleLines {
    QT_TRANSLATE_NOOP("Words", "feed me screenshots"),
    QT_TRANSLATE_NOOP("Words", "I live in your menu bar now"),
    QT_TRANSLATE_NOOP("Words", "what are we capturing today?"),
    QT_TRANSLATE_NOOP("Words", "one more snap won't hurt"),
    QT_TRANSLATE_NOOP("Words", "I'm not a screenshot goblin, you are"),
    QT_TRANSLATE_NOOP("Words", "pet me again"), QT_TRANSLATE_NOOP("Words", "*happy pixel noises*"),
    QT_TRANSLATE_NOOP("Words", "lowkey proud of us")};

/// 1 at first; level n takes 40 × (n − 1)² points.
int level(qint64 xp);

/// How much of the way from its level to the next one is done: from 0 to less than 1.
double progress(qint64 xp);

/// Of a level: an index into the tables above.
std::size_t stage(int level);

/// "Evolves into Chick at level 4".
QString nextStage(int level);

/// What the user may call it: without blanks around, at most 24 characters as a reader counts them.
/// Empty where nothing is left.
QString acceptableName(const QString& name);

} // namespace Pet
