// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "bench/Rounds.h"

#include <algorithm>
#include <cmath>
#include <ctime>

namespace {

double milliseconds(clockid_t clock)
{
    timespec now {};
    clock_gettime(clock, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}

// The smallest value that the given share of all values does not exceed.
double quantile(std::vector<double> values, double share)
{
    std::sort(values.begin(), values.end());
    const double rank = std::ceil(share * double(values.size()));
    return values[std::size_t(std::max(rank - 1, 0.0))];
}

std::vector<double> column(
    const std::vector<Rounds::Sample>& samples, double Rounds::Sample::*value)
{
    std::vector<double> values;
    for (const auto& sample : samples)
        values.push_back(sample.*value);
    return values;
}

} // namespace

void Rounds::add(const QString& name, std::function<void()> work)
{
    addMeasured(name, [work = std::move(work)] {
        const Sample before {milliseconds(CLOCK_PROCESS_CPUTIME_ID), milliseconds(CLOCK_MONOTONIC)};
        work();
        return Sample {milliseconds(CLOCK_PROCESS_CPUTIME_ID) - before.cpu,
            milliseconds(CLOCK_MONOTONIC) - before.wall};
    });
}

void Rounds::addMeasured(const QString& name, std::function<Sample()> work)
{
    m_cases.push_back({name, std::move(work), {}});
}

void Rounds::run(int rounds)
{
    for (int round = 0; round <= rounds; ++round) {
        for (auto& one : m_cases) {
            const Sample sample = one.work();
            if (round > 0)
                one.samples.push_back(sample);
        }
    }
}

double Rounds::medianCpu(const QString& name) const
{
    return quantile(column(samplesOf(name), &Sample::cpu), 0.5);
}

double Rounds::cpu95(const QString& name) const
{
    return quantile(column(samplesOf(name), &Sample::cpu), 0.95);
}

double Rounds::medianWall(const QString& name) const
{
    return quantile(column(samplesOf(name), &Sample::wall), 0.5);
}

double Rounds::wall95(const QString& name) const
{
    return quantile(column(samplesOf(name), &Sample::wall), 0.95);
}

double Rounds::ratio(const QString& name, const QString& baseline) const
{
    return ratioOf(&Sample::cpu, name, baseline);
}

double Rounds::wallRatio(const QString& name, const QString& baseline) const
{
    return ratioOf(&Sample::wall, name, baseline);
}

double Rounds::ratioOf(double Sample::*value, const QString& name, const QString& baseline) const
{
    auto ratios = column(samplesOf(name), value);
    const auto bases = column(samplesOf(baseline), value);
    std::transform(ratios.begin(), ratios.end(), bases.begin(), ratios.begin(), std::divides());
    return quantile(ratios, 0.5);
}

const std::vector<Rounds::Sample>& Rounds::samplesOf(const QString& name) const
{
    const auto found = std::find_if(
        m_cases.begin(), m_cases.end(), [&](const Case& one) { return one.name == name; });
    Q_ASSERT(found != m_cases.end());
    return found->samples;
}
