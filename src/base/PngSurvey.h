// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/PngPalette.h"
#include "base/PngScanlines.h"
#include "base/RowWalk.h"

#include <vector>

/// Slices spread over the height, together a thirty-second of it or a little more; all of a low
/// picture.
std::vector<RowRange> sampleOf(int height);

/// Whether a sample of the picture has too many colours for a palette, as most that have soon show.
/// Those that it sees are put into the palette.
Result<bool> hasManyColours(RowSource& source, PngPalette& palette);

/// RGB when every pixel is opaque, else RGBA.
Result<PngColour> trueColour(RowSource& source, const PixelRows& pixelRows);
