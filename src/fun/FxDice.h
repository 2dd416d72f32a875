// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QRandomGenerator>

#include <numbers>

inline constexpr double fullCircle = 2 * std::numbers::pi; ///< Radians.

/// Numbers by chance, the same ones for the same seed.
class FxDice final {
public:
    explicit FxDice(quint32 seed)
        : m_random(seed)
    {
    }

    double between(double least, double most)
    {
        return least + (most - least) * m_random.generateDouble();
    }
    int below(qsizetype most) { return int(m_random.bounded(qint64(most))); }

private:
    QRandomGenerator m_random;
};
