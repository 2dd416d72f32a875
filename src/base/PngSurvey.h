// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/PngPalette.h"
#include "base/PngScanlines.h"
#include "base/Rows.h"

#include <vector>

/// Some rows of a picture: from first up to, but without, end.
struct RowRange {
    int first = 0;
    int end = 0;
};

/// Slices spread over the height, together a thirty-second of it or a little more; all of a low
/// picture.
std::vector<RowRange> sampleOf(int height);

/// What a picture is made of, found in as few of its rows as tell it for sure.
class PngSurvey final {
public:
    static Result<PngSurvey> make(RowSource& source, const PixelRows& pixelRows);

    PngColour colour() const;
    const PngPalette& palette() const { return m_palette; }

private:
    explicit PngSurvey(PixelFormat format);

    /// Whether nothing that may follow can change the colour type.
    bool certain() const;
    Result<void> look(RowSource& source, const PixelRows& pixelRows, RowRange range);

    PngPalette m_palette;
    bool m_opaqueByFormat;
    bool m_transparencySeen = false;
};
