// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

/// A small picture of a capture: within the size in pixels, never enlarged, of the same
/// proportions; RGB32 where it is opaque, else ARGB32_Premultiplied.
QImage reduced(const QImage& image, QSize most);
