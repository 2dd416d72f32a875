// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Deflater.h"
#include "base/PixelRows.h"

/// What the PNG writer's hot work is done by. Pictures are the same with each engine, files are
/// not.
struct PngEngine {
    const Compression& compression;
    const PixelRows& rows;

    /// The best that this build has and this processor runs.
    static PngEngine fastest();
    static PngEngine portable();
};
