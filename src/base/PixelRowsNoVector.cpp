// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/PixelRows.h"

const PixelRows* vectorPixelRows()
{
    return nullptr;
}
