// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>
#include <vector>

/// Measures named cases in turns, one run of each per round, so that whatever else the machine does
/// hits all of them alike and ratios within a round mean something.
class Rounds final {
public:
    /// Milliseconds.
    struct Sample {
        double cpu = 0; ///< Of all threads of the process.
        double wall = 0;
    };

    /// Work of this process.
    void add(const QString& name, std::function<void()> work);

    /// Work that measures itself, as whoever runs other programs does.
    void addMeasured(const QString& name, std::function<Sample()> work);

    /// One round that is not counted, then as many as said.
    void run(int rounds);

    double medianCpu(const QString& name) const;
    double cpu95(const QString& name) const; ///< 95 of 100 runs took no longer.
    double medianWall(const QString& name) const;
    double wall95(const QString& name) const;

    /// How many times the processor time of the baseline a case took: the median of all rounds.
    double ratio(const QString& name, const QString& baseline) const;
    double wallRatio(const QString& name, const QString& baseline) const;

private:
    struct Case {
        QString name;
        std::function<Sample()> work;
        std::vector<Sample> samples;
    };

    const std::vector<Sample>& samplesOf(const QString& name) const;
    double ratioOf(double Sample::*value, const QString& name, const QString& baseline) const;

    std::vector<Case> m_cases;
};
