// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "fun/Fun.h"
#include "widgets/TextLabel.h"

/// What was counted, as a row of large numbers.
class StatsView final : public QWidget {
    Q_OBJECT

public:
    StatsView(const Themes& themes, const Fun& fun);

private:
    TextLabel* add(const QString& caption);
    void show();

    const Themes& m_themes;
    const Fun& m_fun;
    TextLabel* m_total;
    TextLabel* m_today;
    TextLabel* m_streak;
    TextLabel* m_best;
    TextLabel* m_level;
};
