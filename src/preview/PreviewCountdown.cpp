// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "preview/PreviewCountdown.h"

#include <algorithm>
#include <cmath>

namespace {

const int ticksPerSecond = int(std::lround(1 / PreviewCountdown::tick));

} // namespace

bool PreviewCountdown::advance(int seconds, bool isPaused)
{
    if (seconds < 1 || isPaused)
        return false;
    ++m_ticks;
    return m_ticks >= seconds * ticksPerSecond;
}

double PreviewCountdown::left(int seconds) const
{
    if (seconds < 1)
        return 0;
    return std::max(0.0, 1 - double(m_ticks) / (double(seconds) * ticksPerSecond));
}
