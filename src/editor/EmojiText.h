// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

#include <vector>

/// A character as people count them: a letter with its accents, an emoji of several code points.
struct Grapheme {
    qsizetype from;
    qsizetype length;
};

/// All of them, in order; together they are the text.
std::vector<Grapheme> graphemesOf(const QString& text);

/// Whether a grapheme is shown as a colour emoji.
bool isEmoji(QStringView grapheme);

/// U+FE0F, which asks for the colour emoji, and keeps fonts from joining several into one.
inline constexpr QChar emojiPresentation(0xfe0f);
