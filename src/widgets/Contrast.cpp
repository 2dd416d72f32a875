// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/Contrast.h"

#include <algorithm>
#include <cmath>

namespace {

/// Of one part of an sRGB colour, 0 to 1.
double linear(double part)
{
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(QColor colour)
{
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF())
        + 0.0722 * linear(colour.blueF());
}

} // namespace

double Contrast::ratio(QColor first, QColor second)
{
    const auto [dark, light] = std::minmax({luminance(first), luminance(second)});
    return (light + 0.05) / (dark + 0.05);
}

QColor Contrast::over(QColor colour, QColor ground)
{
    const float alpha = colour.alphaF();
    colour.setAlphaF(1);
    return mixed(ground, colour, alpha);
}

QColor Contrast::mixed(QColor first, QColor second, double amount)
{
    const auto part = [share = float(amount)](float a, float b) { return a + (b - a) * share; };
    return QColor::fromRgbF(part(first.redF(), second.redF()),
        part(first.greenF(), second.greenF()), part(first.blueF(), second.blueF()),
        part(first.alphaF(), second.alphaF()));
}

QColor Contrast::readable(QColor colour, const QList<QColor>& grounds, double least)
{
    constexpr int steps = 64;
    const QColor end = onGround(grounds.first());
    for (int step = 0; step < steps; ++step) {
        const QColor nearer = mixed(colour, end, double(step) / steps);
        if (std::ranges::all_of(
                grounds, [&](QColor ground) { return ratio(nearer, ground) >= least; }))
            return nearer;
    }
    return end;
}

QColor Contrast::onGround(QColor ground)
{
    // On a colour white looks lighter than it measures, so it need not be the better one.
    const double white = ratio(Qt::white, ground);
    return white >= text || white >= ratio(Qt::black, ground) ? Qt::white : Qt::black;
}
