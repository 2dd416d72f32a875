// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

/// Fills a part of an image with another one at half its size, each pixel the average of four.
/// @param from 32 bits a pixel.
/// @param to of the same format, half as large, rounded up.
/// @param part of what is to be filled, within it.
void halve(const QImage& from, QImage& to, const QRect& part);
