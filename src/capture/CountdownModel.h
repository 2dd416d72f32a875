// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <chrono>

/// The seconds before a delayed capture, and whether the user still wants it. Whoever drives it
/// waits untilTick(), calls tick(), and so on until that says that it is over.
class CountdownModel final {
public:
    explicit CountdownModel(int seconds)
        : m_remaining(std::max(seconds, 0))
    {
    }

    int remaining() const { return m_remaining; } ///< Seconds still to wait, as shown.
    bool isCancelled() const { return m_cancelled; }

    /// Takes effect with the next tick.
    void cancel() { m_cancelled = true; }

    /// With no second to wait, the card is still seen for a moment.
    std::chrono::milliseconds untilTick() const
    {
        return std::chrono::milliseconds(m_remaining < 1 ? 200 : 1000);
    }

    enum class Tick { GoesOn, Over };
    Tick tick()
    {
        if (m_cancelled || m_remaining < 2)
            return Tick::Over;
        --m_remaining;
        return Tick::GoesOn;
    }

private:
    int m_remaining;
    bool m_cancelled = false;
};
