// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QRect>

/// A QR or bar code in a picture.
struct Code {
    QString text;
    QRect box; ///< In pixels of the picture.
};

/// Those of a picture in Format_Grayscale8, from top to bottom.
QList<Code> readCodes(const QImage& grey);
