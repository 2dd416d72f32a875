// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QRect>
#include <QString>

/// One line as Tesseract takes it to read.
struct FoundLine {
    QString text;
    QRect box; ///< On the page.
    double confidence = 0; ///< Mean of its characters', from 0 to 100. Of text, 98 and more.
};

/// Below this, another model may read a line better, as one in another script.
constexpr double doubtfulConfidence = 98.5;

/// Those of the lines that are text, not what is read into photos, noise and icons.
QList<FoundLine> withoutGarbage(const QList<FoundLine>& lines);
