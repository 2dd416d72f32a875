// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/text/Misreadings.h"

#include <QRegularExpression>

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

/// A bar reaches further below the line, and below other letters, in parts of its height. Neither
/// place is known well.
constexpr double mostFootOfI = 0.16, mostBelowLetters = 0.09;

/// Whether no letter of a word reaches below the line that letters stand on.
bool standsOnLine(const FoundWord& word)
{
    return std::all_of(word.text.begin(), word.text.end(),
        [](QChar each) { return each.isLetterOrNumber() && !u"gjpqyJQ"_s.contains(each); });
}

/// The bottom of the nearest word that stands on the line.
std::optional<int> bottomNear(const FoundLine& line, const FoundWord& word)
{
    std::optional<int> bottom;
    int nearest = std::numeric_limits<int>::max();
    for (const auto& other : line.words) {
        const int distance = std::abs(other.box.center().x() - word.box.center().x());
        if (distance < nearest && standsOnLine(other)) {
            nearest = distance;
            bottom = other.box.bottom();
        }
    }
    return bottom;
}

void correctBar(FoundWord& word, const FoundLine& line)
{
    static const QRegularExpression bar(u"^\\|(?=$|['’])"_s);
    if (!word.text.contains(bar))
        return;
    const auto bottom = bottomNear(line, word);
    if (bottom && word.foot <= mostFootOfI * word.box.height()
        && word.box.bottom() - *bottom <= mostBelowLetters * word.box.height())
        word.text.replace(0, 1, u'I');
}

void correctAddress(FoundWord& word)
{
    static const QRegularExpression start(u"^(https?)[:/()A|]{1,4}(?=www\\.)"_s);
    word.text.replace(start, u"\\1://"_s);
}

/// Where most marks of a page are straight, the others are as well.
void straighten(QList<FoundLine>& lines, QChar straight, const QString& curly)
{
    const auto isCurly = [&](QChar each) { return curly.contains(each); };
    qsizetype straightOnes = 0, curlyOnes = 0;
    for (const auto& line : lines)
        for (const auto& word : line.words) {
            straightOnes += word.text.count(straight);
            curlyOnes += std::count_if(word.text.begin(), word.text.end(), isCurly);
        }
    if (curlyOnes == 0 || curlyOnes > straightOnes)
        return;
    for (auto& line : lines)
        for (auto& word : line.words)
            std::replace_if(word.text.begin(), word.text.end(), isCurly, straight);
}

} // namespace

void correctMisreadings(QList<FoundLine>& lines)
{
    for (auto& line : lines)
        for (auto& word : line.words) {
            correctBar(word, line);
            correctAddress(word);
        }
    straighten(lines, u'\'', u"‘’"_s);
    straighten(lines, u'"', u"“”"_s);
}
