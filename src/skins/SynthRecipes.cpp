// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "skins/SynthRecipes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

using SynthRecipes::sampleRate;
using SynthRecipes::Samples;

namespace {

constexpr double pi = std::numbers::pi;
constexpr double tau = 2 * pi;

/// Makes each sample from its time in seconds.
template <typename Recipe>
Samples make(std::size_t count, Recipe recipe)
{
    Samples samples(count);
    for (std::size_t i = 0; i < count; ++i)
        samples[i] = float(recipe(double(i) / sampleRate));
    return samples;
}

/// e^(-rate·t) for one sample after the other, without the exponential each time.
class Decay final {
public:
    explicit Decay(double rate, double start = 0)
        : m_value(std::exp(-rate * start))
        , m_factor(std::exp(-rate / sampleRate))
    {
    }

    double next() { return std::exchange(m_value, m_value * m_factor); }

private:
    double m_value;
    const double m_factor;
};

double uniform(QRandomGenerator& random, double from, double to)
{
    return from + (to - from) * random.generateDouble();
}

/// Adds one bell note from that second on to the end.
void addNote(Samples& samples, double start, double frequency, double amplitude)
{
    const auto first = std::size_t(start * sampleRate);
    const double offset = double(first) / sampleRate - start;
    Decay decay(9, offset);
    Decay attack(800, offset);
    for (std::size_t i = first; i < samples.size(); ++i) {
        const double u = double(i) / sampleRate - start;
        const double tone
            = std::sin(tau * frequency * u) + 0.3 * std::sin(tau * 2.01 * frequency * u);
        samples[i] += float(tone * decay.next() * amplitude * (1 - attack.next()));
    }
}

} // namespace

Samples SynthRecipes::chirp()
{
    constexpr std::array starts {0.0, 0.11};
    constexpr double length = 0.09;
    double phase = 0;
    return make(10'584, [&](double t) {
        double sum = 0;
        for (const double start : starts) {
            const double u = t - start;
            if (u < 0 || u > length)
                continue;
            const double frequency = 1'800 + 1'600 * (u / length) + 120 * std::sin(u * tau * 40);
            phase += tau * frequency / sampleRate;
            sum += std::sin(phase) * std::sin(pi * u / length);
        }
        return 0.6 * sum;
    });
}

Samples SynthRecipes::zap()
{
    double cycles = 0;
    return make(9'702, [&](double t) {
        cycles += (2'600 * std::exp(-14 * t) + 180) / sampleRate;
        const double level = std::exp(-11 * t);
        const double square = cycles - std::floor(cycles) >= 0.5 ? -level : level;
        const double sine = std::sin(tau * cycles) * std::exp(-9 * t);
        return 0.4 * sine + 0.35 * square;
    });
}

Samples SynthRecipes::coin()
{
    constexpr double change = 0.07;
    return make(18'522, [](double t) {
        const double frequency = t < change ? 987.77 : 1'318.51;
        const double square = std::sin(tau * frequency * t) >= 0 ? 1 : -1;
        const double envelope = t < change ? 1 : std::exp(-7 * (t - change));
        return square * envelope * std::min(t / 0.002, 1.0) * 0.3;
    });
}

Samples SynthRecipes::sparkle(QRandomGenerator& random)
{
    constexpr std::array notes {2'093.0, 2'637.0, 3'136.0, 3'951.1, 4'186.0, 3'520.0, 2'793.8};
    Samples samples(39'690);
    for (int i = 0; i < 9; ++i) {
        const double start = 0.055 * i + uniform(random, 0, 0.02);
        const double note = notes[random.bounded(quint32(notes.size()))];
        addNote(samples, start, note, uniform(random, 0.5, 1));
    }
    return samples;
}

Samples SynthRecipes::boom(QRandomGenerator& random)
{
    double phase = 0;
    double rumble = 0;
    return make(26'460, [&](double t) {
        phase += tau * (110 * std::exp(-18 * t) + 45) / sampleRate;
        rumble += 0.08 * (uniform(random, -1, 1) - rumble);
        return std::exp(-6 * t) * std::sin(phase) * 0.9 + std::exp(-9 * t) * rumble * 1.6;
    });
}

void SynthRecipes::normalise(Samples& samples)
{
    float peak = 0.0001F;
    for (const float sample : samples)
        peak = std::max(peak, std::abs(sample));
    const double gain = 0.9 / double(peak); // In floats, the peak would come out a step beside.
    for (float& sample : samples)
        sample = float(double(sample) * gain);
}
