// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

/// A picture that stands for a capture where there is none: a window on a wallpaper.
QImage sampleCapture();
