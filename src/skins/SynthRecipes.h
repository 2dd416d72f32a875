// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QRandomGenerator>

#include <vector>

/// The synthesised sounds as they come out of their recipes: mono, of any loudness.
namespace SynthRecipes {

constexpr int sampleRate = 44'100; ///< Per second.

using Samples = std::vector<float>;

Samples chirp(); ///< Two rising chirps.
Samples zap(); ///< A falling sweep.
Samples coin(); ///< Two notes of a square wave.
Samples sparkle(QRandomGenerator& random); ///< Nine bell notes.
Samples boom(QRandomGenerator& random); ///< A falling thump, and noise.

/// Makes the greatest sample 0.9, of either sign; what is silent stays nearly so.
void normalise(Samples& samples);

} // namespace SynthRecipes
