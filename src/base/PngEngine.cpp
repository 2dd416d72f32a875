// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/PngEngine.h"

PngEngine PngEngine::fastest()
{
    const auto* compression = isalCompression();
    const auto* rows = vectorPixelRows();
    return {compression ? *compression : zlibCompression(), rows ? *rows : portablePixelRows()};
}

PngEngine PngEngine::portable()
{
    return {zlibCompression(), portablePixelRows()};
}
