// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QStringList>

/// English text as screens show it, painted in known ways, so that what is read can be compared.
namespace TextCorpus {

struct Look {
    QString font;
    int points = 13; ///< Height of the font.
    double scale = 1; ///< Pixels per point.
    bool dark = false; ///< Light letters on a dark ground.
};

/// Sentences, labels, prices, addresses and code, the same for the same seed.
QStringList lines(int count, quint32 seed);

/// One line below the other, with some room around.
QImage page(const QStringList& lines, const Look& look);

/// How many characters must be put in, taken out or replaced to make one of the other. Spaces in a
/// row and at the ends of lines count as none.
int errors(const QString& read, const QString& expected);

} // namespace TextCorpus
