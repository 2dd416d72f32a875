// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QRect>

/// A picture made ready for Tesseract: grey, text dark on white and as large as it reads best, with
/// an empty margin.
struct PageImage {
    /// What all letters are brought to if they are smaller, in pixels per point: more is no better
    /// and takes longer.
    static constexpr double bestScale = 2;

    /// Of a picture, in pixels: Tesseract takes little more.
    static constexpr int longestSide = 32'000;

    QImage image; ///< Format_Grayscale8.
    double factor = 1; ///< By which it is larger than the picture.
    int margin = 0;

    /// @param grey of the picture, Format_Grayscale8.
    /// @param scale pixels of the picture per point.
    static PageImage of(const QImage& grey, double scale);

    /// A place on the page as one in the picture.
    QRect inPicture(QRect box) const;
};

/// Format_Grayscale8; what is transparent becomes white.
QImage greyOf(const QImage& picture);

/// Between two pixels lies what is between their greys.
QImage enlarged(const QImage& grey, double factor);
