// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "bench/SamplePhoto.h"

#include <algorithm>
#include <cmath>
#include <random>

namespace {

quint32 scramble(quint32 value)
{
    value = (value ^ value >> 16) * 0x7feb352d;
    value = (value ^ value >> 15) * 0x846ca68b;
    return value ^ value >> 16;
}

// One value in 0..1 for each whole point.
float lattice(int x, int y, quint32 seed)
{
    const quint32 point = quint32(x) * 374761393u + quint32(y) * 668265263u + seed * 2246822519u;
    return float(scramble(point) & 0xffff) / 65535.f;
}

float smoothNoise(float x, float y, quint32 seed)
{
    const int left = int(std::floor(x));
    const int top = int(std::floor(y));
    const auto ease = [](float t) { return t * t * (3 - 2 * t); };
    const float across = ease(x - float(left));
    const float down = ease(y - float(top));
    return std::lerp(std::lerp(lattice(left, top, seed), lattice(left + 1, top, seed), across),
        std::lerp(lattice(left, top + 1, seed), lattice(left + 1, top + 1, seed), across), down);
}

float fractalNoise(float x, float y, int octaves, quint32 seed)
{
    float sum = 0;
    float weight = 0.5f;
    float total = 0;
    for (int i = 0; i < octaves; ++i) {
        sum += weight * smoothNoise(x, y, seed + quint32(i));
        total += weight;
        weight *= 0.55f;
        x *= 2.03f;
        y *= 2.03f;
    }
    return sum / total;
}

struct Colour {
    float red, green, blue; // 0..255, and beyond before they are clipped
};

// The point (x, y) with the picture's height as 4.
Colour landscape(float x, float y, quint32 seed)
{
    const float ridge = 1.6f + 0.9f * fractalNoise(x * 1.2f, 3, 6, seed + 9);
    if (y < ridge) {
        const float density = fractalNoise(x * 1.3f, y * 2.2f, 6, seed + 1);
        const float cloud = std::clamp((density - 0.42f) * 3, 0.f, 1.f);
        const float depth = y / 2.4f;
        return {std::lerp(70 + 80 * depth, 240.f, cloud), std::lerp(125 + 60 * depth, 238.f, cloud),
            std::lerp(205 + 20 * depth, 236.f, cloud)};
    }
    const float coarse = fractalNoise(x * 9, y * 9, 6, seed + 2);
    const float fine = fractalNoise(x * 40, y * 40, 3, seed + 5);
    const float light = 0.45f + 0.9f * (coarse - 0.5f) + 0.6f * (fine - 0.5f);
    return {190 * light, 230 * light, 120 * light};
}

} // namespace

QImage samplePhoto(QSize size, quint32 seed)
{
    QImage photo(size, QImage::Format_RGB32);
    std::mt19937 random(seed);
    std::normal_distribution<float> sensor(0, 2);
    for (int y = 0; y < size.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(photo.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            const float unit = 4 / float(size.height());
            const auto colour = landscape(float(x) * unit, float(y) * unit, seed);
            const float brightness = sensor(random);
            const auto noisy = [&](float value) {
                return std::clamp(
                    int(std::lround(value + brightness + sensor(random) * 0.5f)), 0, 255);
            };
            const int red = noisy(colour.red);
            const int green = noisy(colour.green);
            line[x] = qRgb(red, green, noisy(colour.blue));
        }
    }
    return photo;
}
