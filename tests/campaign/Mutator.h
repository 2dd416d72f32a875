// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>

#include <random>

/// Makes of sound content what a disk, a network or somebody with bad intent might make of it; the
/// same for the same seed.
class Mutator final {
public:
    explicit Mutator(unsigned seed)
        : m_random(seed)
    {
    }

    /// One of the samples with a few changes.
    QByteArray mutated(const QList<QByteArray>& samples);
    qsizetype below(qsizetype limit) { return qsizetype(m_random() % quint64(limit)); }

private:
    void change(QByteArray& bytes, const QByteArray& other);
    QByteArray token();

    std::mt19937 m_random;
};
