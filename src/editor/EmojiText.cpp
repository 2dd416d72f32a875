// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/EmojiText.h"

#include <QList>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <array>

namespace {

constexpr char32_t textPresentation = 0xfe0e, keycap = 0x20e3;

/// What is an emoji unless told otherwise, among the older characters. From Unicode's
/// Emoji_Presentation, below the planes that consist of emoji.
constexpr std::array oldEmoji {0x231a, 0x231b, 0x23e9, 0x23ea, 0x23eb, 0x23ec, 0x23f0, 0x23f3,
    0x25fd, 0x25fe, 0x2614, 0x2615, 0x2648, 0x2649, 0x264a, 0x264b, 0x264c, 0x264d, 0x264e, 0x264f,
    0x2650, 0x2651, 0x2652, 0x2653, 0x267f, 0x2693, 0x26a1, 0x26aa, 0x26ab, 0x26bd, 0x26be, 0x26c4,
    0x26c5, 0x26ce, 0x26d4, 0x26ea, 0x26f2, 0x26f3, 0x26f5, 0x26fa, 0x26fd, 0x2705, 0x270a, 0x270b,
    0x2728, 0x274c, 0x274e, 0x2753, 0x2754, 0x2755, 0x2757, 0x2795, 0x2796, 0x2797, 0x27b0, 0x27bf,
    0x2b1b, 0x2b1c, 0x2b50, 0x2b55};
static_assert(std::is_sorted(oldEmoji.begin(), oldEmoji.end()));

bool isEmojiByItself(char32_t code)
{
    const auto between
        = [code](char32_t first, char32_t last) { return code >= first && code <= last; };
    return between(0x1f1e6, 0x1f1ff) // Letters that make up flags.
        || between(0x1f300, 0x1faff) || between(0x1f191, 0x1f19a) || code == 0x1f18e
        || code == 0x1f004 || code == 0x1f0cf
        || std::binary_search(oldEmoji.begin(), oldEmoji.end(), int(code));
}

} // namespace

std::vector<Grapheme> graphemesOf(const QString& text)
{
    std::vector<Grapheme> graphemes;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    for (qsizetype from = 0; finder.toNextBoundary() > from; from = finder.position())
        graphemes.push_back({from, finder.position() - from});
    return graphemes;
}

bool isEmoji(QStringView grapheme)
{
    const auto codes = grapheme.toUcs4();
    if (codes.isEmpty() || codes.contains(textPresentation))
        return false;
    return isEmojiByItself(codes.first()) || grapheme.contains(emojiPresentation)
        || (codes.size() > 1 && codes.last() == keycap);
}
