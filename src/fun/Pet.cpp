// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "fun/Pet.h"

#include "base/Words.h"

#include <QTextBoundaryFinder>

#include <algorithm>
#include <cmath>

namespace {

constexpr double xpOfLevel2 = 40;
constexpr int longestName = 24;

} // namespace

int Pet::level(qint64 xp)
{
    return int(std::sqrt(double(std::max<qint64>(xp, 0)) / xpOfLevel2)) + 1;
}

double Pet::progress(qint64 xp)
{
    const auto begins = [](qint64 level) { return 40 * (level - 1) * (level - 1); };
    const int now = level(xp);
    const auto way = double(begins(now + 1) - begins(now));
    return std::clamp(double(xp - begins(now)) / way, 0.0, 1.0);
}

std::size_t Pet::stage(int level)
{
    const auto above = std::ranges::upper_bound(stageAt, std::max(level, stageAt.front()));
    return std::size_t(above - stageAt.begin()) - 1;
}

QString Pet::nextStage(int level)
{
    const std::size_t next = stage(level) + 1;
    if (next == stageAt.size())
        return Words::tr("Fully evolved");
    return Words::tr("Evolves into %1 at level %2")
        .arg(Words::tr(stageNames[next]))
        .arg(stageAt[next]);
}

QString Pet::acceptableName(const QString& name)
{
    const QString trimmed = name.trimmed();
    QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, trimmed);
    for (int i = 0; i < longestName; ++i)
        if (characters.toNextBoundary() < 0)
            return trimmed;
    return trimmed.left(characters.position());
}
