// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

/// The picture with all text black on white, whatever it was: on a dark theme, on a coloured button
/// of a light page, pale comments beside bright code. Tesseract by itself drops what is lighter
/// than its ground if the rest of the page is not, and what is paler than the rest.
/// @param grey Format_Grayscale8.
/// @param scale pixels per point.
QImage blackOnWhite(const QImage& grey, double scale);
