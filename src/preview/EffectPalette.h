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

/// What they are called, in English, for Words::tr().
inline constexpr std::array<const char*, names.size()> titles {QT_TRANSLATE_NOOP("Words", "Accent"),
    QT_TRANSLATE_NOOP("Words", "Rainbow"), QT_TRANSLATE_NOOP("Words", "Sunset"),
    QT_TRANSLATE_NOOP("Words", "Ocean"), QT_TRANSLATE_NOOP("Words", "Aurora"),
    QT_TRANSLATE_NOOP("Words", "Candy"), QT_TRANSLATE_NOOP("Words", "Neon"),
    QT_TRANSLATE_NOOP("Words", "Mint")};

/// Of a name; any other name means the accent.
QList<QColor> colours(QStringView name, const QColor& accent);

/// Somewhere on the way through the colours and back to the first, so that it has no seam.
/// @param place any number; only its fraction counts
QColor at(const QList<QColor>& colours, double place);

} // namespace EffectPalette
