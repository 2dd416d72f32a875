// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"

#include <QUrl>

/// The loudspeakers. Sound is an ornament: nothing here ever waits, and where there is no sound
/// server or no such file, it is simply silent.
class SoundOutput {
public:
    virtual ~SoundOutput() = default;

    /// Starts a sound beside whatever plays already, and returns at once.
    /// @param file of the disk ("file:") or of the program's own resources ("qrc:").
    /// @param volume from 0, silent, to 1, as recorded; others count as the nearer end.
    virtual void play(const QUrl& file, double volume) = 0;

    /// Whether a file would be heard, apart from the loudspeakers; fails with a sentence for the
    /// user who chose it.
    virtual Result<void> check(const QUrl& file) const = 0;
};
