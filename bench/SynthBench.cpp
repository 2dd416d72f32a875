// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "bench/Rounds.h"
#include "skins/SynthRecipes.h"
#include "skins/WavFile.h"

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

/// For all five sounds together, in milliseconds: they are made between a capture and its sound.
constexpr double target = 30;

void finish(SynthRecipes::Samples samples)
{
    SynthRecipes::normalise(samples);
    std::ignore = wavFile(samples, SynthRecipes::sampleRate);
}

} // namespace

int main()
{
    QRandomGenerator random(1);
    const std::vector<std::pair<QString, std::function<void()>>> sounds {
        {u"Chirp"_s, [] { finish(SynthRecipes::chirp()); }},
        {u"Zap"_s, [] { finish(SynthRecipes::zap()); }},
        {u"Coin"_s, [] { finish(SynthRecipes::coin()); }},
        {u"Sparkle"_s, [&] { finish(SynthRecipes::sparkle(random)); }},
        {u"Boom"_s, [&] { finish(SynthRecipes::boom(random)); }},
    };
    Rounds rounds;
    for (const auto& [name, make] : sounds)
        rounds.add(name, make);
    const QString all = u"all five"_s;
    rounds.add(all, [&] {
        for (const auto& [name, make] : sounds)
            make();
    });
    rounds.run(50);

    std::printf("%-9s %8s %8s %8s\n", "", "cpu ms", "p95 ms", "wall ms");
    const auto print = [&](const QString& name) {
        std::printf("%-9s %8.2f %8.2f %8.2f", qPrintable(name), rounds.medianCpu(name),
            rounds.cpu95(name), rounds.medianWall(name));
    };
    for (const auto& [name, make] : sounds) {
        print(name);
        std::puts("");
    }
    print(all);
    std::printf("  (%s %.0f)\n", rounds.medianCpu(all) <= target ? "<=" : "MISSED", target);
    return 0;
}
