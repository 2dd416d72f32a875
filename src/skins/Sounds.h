// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "skins/SynthSounds.h"

/// The catalogue of capture sounds and their player. A sound goes by one text everywhere: a name of
/// the catalogue, or the absolute path of a file that the user chose. One that is missing or can't
/// be played is silent. Lives on the main thread.
class Sounds final {
public:
    struct Item {
        QString name; ///< As shown, and as kept in the preferences.
        QUrl url; ///< Of a file, or of a resource of the program.
    };

    /// @param folders where sounds and sound themes lie; searched in this order.
    Sounds(const Prefs& prefs, const SynthSounds& synthesised, SoundOutput& output,
        QStringList folders = desktopFolders());

    static Sounds& shared(); ///< The one that install() was called on.
    void install();

    /// The folders for sounds of the system and of the user, by the XDG variables.
    static QStringList desktopFolders();
    /// Of files that count as sounds, in lower case and without dot.
    static const QStringList& extensions();

    /// The catalogue of this moment: the program's screenshot sound, the synthesised ones, the
    /// program's others, those of the desktop. A name may be there more than once.
    QList<Item> available() const;

    /// The first of that name; for a path its file, whether or not it is there.
    std::optional<QUrl> url(const QString& name) const;

    /// Starts a sound beside whatever plays already.
    void play(const QString& name, double volume);
    void playShutter(); ///< The sound of a capture, as the preferences have it.

    /// Whether play() would be heard; fails with a sentence for the user.
    Result<void> check(const QString& name) const;

private:
    QList<Item> scanned() const; ///< The part of the catalogue that lies in folders.

    const Prefs& m_prefs;
    const SynthSounds& m_synthesised;
    SoundOutput& m_output;
    const QStringList m_folders;
};
