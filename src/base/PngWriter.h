// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Rows.h"

#include <functional>
#include <span>

struct PngEngine;

/// Takes the next bytes of a file; fails with the reason that the medium gave.
using ByteSink = std::function<Result<void>(std::span<const std::uint8_t>)>;

/// Streams a picture as a PNG file into a sink with about 0.7 megabytes of state, up to 4 more for
/// one with a palette, and no full-size intermediate. Colour type, filter and palette are chosen
/// for the smallest file that costs little: RGB when the picture is opaque, a palette when it has
/// at most 256 colours. The resolution, scale × 72 dots per inch with scale in pixels per point, is
/// written as a pHYs chunk. Fails only when the source or the sink does, at once and with their
/// reason.
Result<void> writePng(RowSource& source, double scale, const ByteSink& sink);

/// The same, done by a given engine instead of the fastest one.
Result<void> writePng(
    RowSource& source, double scale, const ByteSink& sink, const PngEngine& engine);
