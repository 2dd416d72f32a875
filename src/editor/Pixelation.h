// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

/// The area of an image in squares of one colour each, the average of what they cover of the area.
/// The squares begin at the image's top left corner, so they stay where they are while the area
/// moves or grows. Too weak for a short text that must not be read: that wants a solid colour.
/// @param image 32 bits a pixel.
/// @param area within the image, not empty.
/// @param block the side of a square in pixels, at least 1.
QImage pixelated(const QImage& image, const QRect& area, int block);
