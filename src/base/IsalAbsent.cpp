// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/Deflater.h"

const Compression* isalCompression()
{
    return nullptr;
}
