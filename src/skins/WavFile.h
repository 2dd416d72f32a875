// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <span>

/// A WAV file of one channel and 16 bits. 1, or more, becomes 32,000, a little below full scale.
QByteArray wavFile(std::span<const float> samples, int samplesPerSecond);
