// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "skins/WavFile.h"

#include <QtEndian>

#include <algorithm>

namespace {

constexpr std::uint32_t headerSize = 44;
constexpr std::uint16_t bytesPerSample = 2;
constexpr float fullScale = 32'000;

template <typename Number>
void append(QByteArray& bytes, Number number)
{
    const Number ordered = qToLittleEndian(number);
    bytes.append(reinterpret_cast<const char*>(&ordered), sizeof ordered);
}

} // namespace

QByteArray wavFile(std::span<const float> samples, int samplesPerSecond)
{
    constexpr std::uint16_t pcm = 1;
    constexpr std::uint16_t channels = 1;
    const auto rate = std::uint32_t(samplesPerSecond);
    const auto size = std::uint32_t(samples.size_bytes() / sizeof(float) * bytesPerSample);
    QByteArray file;
    file.reserve(qsizetype(headerSize + size));
    file.append("RIFF");
    append(file, headerSize - 8 + size);
    file.append("WAVEfmt ");
    append(file, std::uint32_t(16)); // Of what describes the format.
    append(file, pcm);
    append(file, channels);
    append(file, rate);
    append(file, rate * bytesPerSample);
    append(file, bytesPerSample);
    append(file, std::uint16_t(8 * bytesPerSample));
    file.append("data");
    append(file, size);
    for (const float sample : samples)
        append(file, std::int16_t(std::clamp(sample, -1.0F, 1.0F) * fullScale));
    return file;
}
