// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Folders.h"
#include "editor/keeping/EditFolder.h"

/// The folder "Layers" in the data folder: what exported pictures were made of, so that their
/// annotations come back to life when they are opened again. The pictures themselves carry nothing;
/// they are known by their pixels. What belongs to an entry of the history is kept under its id and
/// goes with it. Blocks; for one thread at a time.
class Layers final {
public:
    explicit Layers(const Folders& folders)
        : m_folder(folders.data + QStringLiteral("/Layers"))
    {
    }

    /// Keeps what a picture was made of, for the entry that the edit names, if any. Of the older
    /// ones some are forgotten.
    Result<void> store(const PixelHash& exported, const KeptEdit& edit);

    /// What a picture was made of. That of the entry comes first; where a picture is what the entry
    /// showed before it was edited, what the entry shows now was made of. None if unknown.
    std::optional<KeptEdit> find(const PixelHash& picture, const QString& historyId) const;

    bool isEmpty() const { return m_folder.records().isEmpty(); }

    void remove(const QStringList& historyIds) const { m_folder.removeOwners(historyIds); }
    void clear() const { m_folder.clear(); }

    /// Removes what a program left behind that was killed at the wrong moment: half an edit, or
    /// that of an entry that is gone; but none of these if they are many, for then something else
    /// must have happened.
    void removeStrays(const QStringList& historyIds) const;

private:
    std::optional<KeptEdit> newestMadeOf(const PixelHash& base, const QString& owner) const;
    void forgetOldest(const QString& owner, qsizetype most) const;

    EditFolder m_folder;
};
