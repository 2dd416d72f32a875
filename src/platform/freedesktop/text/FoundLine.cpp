// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/text/FoundLine.h"

#include <algorithm>

namespace {

/// Of a line where one of four characters is read wrong. Of drawings and emoji, few reach 96.
constexpr double leastConfidence = 96.5;

/// Of a single character, and only beside other lines.
constexpr double leastAlone = 98.5;

bool isWord(const FoundLine& line)
{
    const auto letters = std::count_if(
        line.text.begin(), line.text.end(), [](QChar each) { return each.isLetterOrNumber(); });
    return line.confidence >= leastConfidence && letters >= 2;
}

} // namespace

QList<FoundLine> withoutGarbage(const QList<FoundLine>& lines)
{
    QList<FoundLine> kept;
    if (std::none_of(lines.begin(), lines.end(), isWord))
        return kept;
    for (const auto& line : lines) // An image among the text comes as an empty line, without doubt.
        if (isWord(line) || (line.confidence >= leastAlone && !line.text.isEmpty()))
            kept << line;
    return kept;
}
