// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What a figure is not to exceed, and what it would better not exceed.
struct Limit {
    double target;
    double goal;
};

/// The figure and how it stands to its limit, such as "0.15 (target 0.20)".
inline QString judged(double figure, Limit limit)
{
    const QString text = QString::number(figure, 'f', 2);
    if (figure <= limit.goal)
        return QStringLiteral("%1 (goal %2)").arg(text).arg(limit.goal, 0, 'f', 2);
    return QStringLiteral("%1 (%2 %3)")
        .arg(text, figure <= limit.target ? QLatin1String("target") : QLatin1String("MISSED"))
        .arg(limit.target, 0, 'f', 2);
}
