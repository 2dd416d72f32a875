// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QFont>
#include <QString>

#include <span>

class LaidText;
class QPainter;

/// One look of text annotations. Drawing is in the units of LaidText.
struct TextLook {
    QLatin1String name; ///< As stored; in English, as the next, for Words::tr().
    const char* effect; ///< One word of what it does.
    QFont (*font)(); ///< Of LaidText::em pixels.
    bool upperCase;
    double padEm; ///< Around the text within its bounds, in font sizes.
    double padPixels; ///< The same, in pixels of the picture.
    double reach; ///< How far beyond the letters it draws, in font sizes.
    void (*draw)(QPainter& painter, const LaidText& text, const QColor& color);

    QString shown(const QString& text) const; ///< What is drawn for it.
    double padding(double fontSize) const { return padEm * fontSize + padPixels; }
};

namespace TextStyles {

std::span<const TextLook> all(); ///< In the order of the menu.
const TextLook& find(QStringView name); ///< The first one for a name that is unknown.

} // namespace TextStyles

/// The desktop's font in the size that LaidText wants.
QFont systemFont(QFont::Weight weight);
