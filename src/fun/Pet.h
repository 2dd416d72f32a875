// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

#include <array>

/// The pet: how it grows with its experience points, and what it says.
namespace Pet {

// Stage by stage: the level it begins at, its name and how it looks.
inline constexpr std::array<int, 5> stageAt {1, 2, 4, 7, 12};
inline constexpr std::array<QStringView, 5> stageNames {
    u"Egg", u"Hatchling", u"Chick", u"Wise Owl", u"Legendary Dragon"};
inline constexpr std::array<QStringView, 5> stageEmoji {u"🥚", u"🐣", u"🐥", u"🦉", u"🐉"};

inline constexpr std::array<QStringView, 12> captureLines {u"ate that", u"caught in 4K",
    u"certified screenshot moment", u"that's going in the lore", u"W capture",
    u"pixel perfect, bestie", u"main character energy", u"saved for the receipts", u"slay",
    u"no thoughts, just pixels", u"it's giving evidence", u"core memory unlocked"};

inline constexpr std::array<QStringView, 8> idleLines {u"feed me screenshots",
    u"I live in your menu bar now", u"what are we capturing today?", u"one more snap won't hurt",
    u"I'm not a screenshot goblin, you are", u"pet me again", u"*happy pixel noises*",
    u"lowkey proud of us"};

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
