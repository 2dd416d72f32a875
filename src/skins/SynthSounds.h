// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Prefs.h"
#include "platform/SoundOutput.h"

#include <optional>

/// Five sounds that the program synthesises itself, each kept as a file from its first use on. A
/// file that can't be written plays nothing; nobody is told. Lives on the main thread.
class SynthSounds final {
public:
    SynthSounds(const Folders& folders, const Prefs& prefs, SoundOutput& output);

    static SynthSounds& shared(); ///< The one that install() was called on.
    void install();

    static const QStringList& names(); ///< In the order of the catalogue.

    /// The file of exactly that sound, made now if it is not there; none for any other name.
    std::optional<QUrl> url(const QString& name) const;

    /// If sounds are on at all, plays one whose name may have any case.
    void play(const QString& name);

private:
    const QString m_folder;
    const Prefs& m_prefs;
    SoundOutput& m_output;
};
