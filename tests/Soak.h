// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstdlib>

/// How often a random test goes round. PIXMALLOW_SOAK=100 multiplies it by a hundred.
inline int soaked(int rounds)
{
    const char* soak = std::getenv("PIXMALLOW_SOAK");
    return rounds * (soak ? std::max(1, std::atoi(soak)) : 1);
}
