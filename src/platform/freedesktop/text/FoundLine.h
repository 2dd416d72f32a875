// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QRect>
#include <QString>

/// One word as Tesseract reads it.
struct FoundWord {
    QString text;
    QRect box; ///< On the page.
    double confidence = 0; ///< Mean of its characters', from 0 to 100.
    int foot = 0; ///< How many pixels it reaches below the line that letters stand on, about.
};

/// One line of them.
struct FoundLine {
    QList<FoundWord> words;
    QRect box; ///< On the page.

    bool isEmpty() const { return words.isEmpty(); }
    QString text() const;

    /// Mean of its characters', from 0 to 100: of text 98 and more. What Tesseract says of a line
    /// is that of its worst characters, so that it doubts every long address.
    double confidence() const;
};

/// Below this, another model may read a line better, as one in another script.
constexpr double doubtfulConfidence = 98.5;

/// Those of the lines that are text, not what is read into photos, noise and icons.
QList<FoundLine> withoutGarbage(const QList<FoundLine>& lines);
