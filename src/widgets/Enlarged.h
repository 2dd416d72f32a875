// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Theme.h"

#include <algorithm>
#include <cmath>

/// What is this many points wide for letters of the usual size: wider for larger ones, but not
/// without end, for the screen is not.
inline int enlarged(int points, const Theme& theme)
{
    constexpr double most = 1.4;
    return int(std::lround(points * std::clamp(theme.textScale, 1.0, most)));
}
