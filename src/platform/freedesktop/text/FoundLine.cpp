// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/text/FoundLine.h"

#include <algorithm>

namespace {

/// Of a line where one of four characters is read wrong. Few drawings, emoji and icons reach 96.
constexpr double leastConfidence = 96.5;

/// Of a single character, and only beside other lines.
constexpr double leastAlone = 98.5;

/// Icons stand at either end of a line and are read as one or two characters.
bool isIcon(const FoundWord& word)
{
    return word.text.size() <= 2 && word.confidence < leastConfidence;
}

FoundLine withoutIcons(FoundLine line)
{
    while (!line.isEmpty() && isIcon(line.words.first()))
        line.words.removeFirst();
    while (!line.isEmpty() && isIcon(line.words.last()))
        line.words.removeLast();
    QRect box;
    for (const auto& word : line.words)
        box |= word.box;
    return {line.words, box};
}

bool isOfWords(const FoundLine& line)
{
    const QString text = line.text();
    const auto letters = std::count_if(
        text.begin(), text.end(), [](QChar each) { return each.isLetterOrNumber(); });
    return letters >= 2 && line.confidence() >= leastConfidence;
}

/// Whether a word goes on after what Tesseract takes for a space: "https: //", "std: :move".
bool isTornApart(const QString& word, const QString& next)
{
    return word.endsWith(u':') && (next.startsWith(u"//") || next.startsWith(u':'));
}

} // namespace

QString FoundLine::text() const
{
    QString text;
    for (const auto& word : words) {
        if (!text.isEmpty() && !isTornApart(text, word.text))
            text += u' ';
        text += word.text;
    }
    return text;
}

double FoundLine::confidence() const
{
    double sum = 0;
    qsizetype characters = 0;
    for (const auto& word : words) {
        sum += word.confidence * double(word.text.size());
        characters += word.text.size();
    }
    return characters ? sum / double(characters) : 0;
}

QList<FoundLine> withoutGarbage(const QList<FoundLine>& lines)
{
    QList<FoundLine> kept;
    for (const auto& line : lines)
        if (auto text = withoutIcons(line); isOfWords(text) || text.confidence() >= leastAlone)
            kept << std::move(text);
    if (std::none_of(kept.begin(), kept.end(), isOfWords))
        kept.clear();
    return kept;
}
