// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>

/// How far something has come, 0 to 1, between two moments.
constexpr double stage(double now, double from, double to)
{
    return std::clamp((now - from) / (to - from), 0.0, 1.0);
}

constexpr double easeOut(double done)
{
    return 1 - (1 - done) * (1 - done) * (1 - done);
}
constexpr double easeIn(double done)
{
    return done * done * done;
}
constexpr double easeInOut(double done)
{
    return done * done * (3 - 2 * done);
}

constexpr double between(double from, double to, double done)
{
    return from + (to - from) * done;
}
