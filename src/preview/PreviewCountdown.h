// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

/// How long a preview card stays: time that counts only while nobody is busy with it.
class PreviewCountdown final {
public:
    static constexpr double tick = 0.1; ///< Seconds.

    /// One tick has passed. @param seconds what the card stays at most; below 1 it stays for good
    /// @return whether the card is to close
    bool advance(int seconds, bool isPaused);

    /// What is left, from 1 to 0, of a card that closes by itself; else 0.
    double left(int seconds) const;

private:
    int m_ticks = 0; ///< Counted; ten of them are exactly a second.
};
