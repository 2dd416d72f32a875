// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QList>
#include <QStringView>

#include <array>

/// The colours in which the border of a preview card plays.
namespace EffectPalette {

inline constexpr std::array<QStringView, 8> names {
    u"accent", u"rainbow", u"sunset", u"ocean", u"aurora", u"candy", u"neon", u"mint"};

/// Of a name; any other name means the accent.
QList<QColor> colours(QStringView name, const QColor& accent);

/// Somewhere on the way through the colours and back to the first, so that it has no seam.
/// @param place any number; only its fraction counts
QColor at(const QList<QColor>& colours, double place);

} // namespace EffectPalette
