// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "preview/EffectPalette.h"

#include "widgets/Contrast.h"
#include "widgets/Theme.h"

#include <algorithm>
#include <cmath>

namespace {

QList<QColor> rainbow()
{
    using enum SystemColour;
    QList<QColor> colours;
    for (const auto colour : {Red, Orange, Yellow, Green, Cyan, Blue, Purple})
        colours << Theme::system(colour);
    return colours;
}

QColor rgb(float red, float green, float blue)
{
    return QColor::fromRgbF(red, green, blue);
}

struct Palette {
    QStringView name;
    QList<QColor> colours;
};

const QList<Palette>& fixedPalettes()
{
    static const QList<Palette> palettes {
        {u"rainbow", rainbow()},
        {u"sunset", {rgb(1, 0.76f, 0.44f), rgb(1, 0.37f, 0.43f), rgb(0.78f, 0.31f, 0.75f)}},
        {u"ocean", {rgb(0.26f, 0.91f, 0.85f), rgb(0, 0.65f, 1), rgb(0.25f, 0.32f, 0.96f)}},
        {u"aurora", {rgb(0, 0.96f, 0.63f), rgb(0, 0.85f, 0.96f), rgb(0.5f, 0.35f, 0.94f)}},
        {u"candy", {rgb(1, 0.6f, 0.62f), rgb(0.98f, 0.82f, 0.77f), rgb(0.63f, 0.55f, 0.82f)}},
        {u"neon", {rgb(0, 1, 0.94f), rgb(1, 0, 0.83f)}},
        {u"mint", {rgb(0.83f, 0.99f, 0.47f), rgb(0.59f, 0.9f, 0.63f), rgb(0.16f, 0.96f, 0.6f)}},
    };
    return palettes;
}

} // namespace

QList<QColor> EffectPalette::colours(QStringView name, const QColor& accent)
{
    const auto& palettes = fixedPalettes();
    const auto found = std::ranges::find(palettes, name, &Palette::name);
    if (found != palettes.end())
        return found->colours;
    QColor faint = accent;
    faint.setAlphaF(0.6f);
    return {accent, faint};
}

QColor EffectPalette::at(const QList<QColor>& colours, double place)
{
    const auto count = colours.size();
    const double along = (place - std::floor(place)) * double(count);
    const auto first = qsizetype(along) % count;
    return Contrast::mixed(colours[first], colours[(first + 1) % count], along - std::floor(along));
}
