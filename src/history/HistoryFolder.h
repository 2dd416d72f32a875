// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Folders.h"
#include "history/HistoryItem.h"

#include <optional>

class FilePresence;

/// The folder "History" in the data folder: index.json and one PNG for each capture that the user
/// saved nowhere. Only its owner can read any of it. Files elsewhere are looked at, never touched.
class HistoryFolder final {
public:
    /// What the index names, newest first.
    struct Content {
        QList<HistoryItem> items; ///< Their files exist.
        QStringList gone; ///< Ids of those whose file does not any more.
        bool isMoved = false; ///< Paths differ from those in the index.
    };

    explicit HistoryFolder(const Folders& folders);

    /// The entries whose files exist, and nothing is changed: for whoever is not their owner. None
    /// where there is no index yet; fails where it makes no sense.
    static Result<QList<HistoryItem>> read(const Folders& folders);

    /// Takes over the data folder of the program's former name, makes what is missing, and reads
    /// the index. One that makes no sense is set aside and is as none. Removes what a write that
    /// was cut off left behind.
    Content open();

    /// Atomically. Fails where a damaged index cannot be set aside.
    Result<void> writeIndex(const QByteArray& text);

    /// Where the private copy of an entry is or would be.
    QString copyPath(const QString& id) const;
    /// Whether the entry's file is its private copy; what an index merely claims to be one is not.
    bool holdsCopyOf(const HistoryItem& item) const;
    /// Atomically; replaces the copy that is there.
    Result<void> writeCopy(const QString& id, const QByteArray& png);
    void removeCopy(const HistoryItem& item);

private:
    std::optional<QByteArray> readIndex(); ///< Null where it is there, but cannot be read.
    /// Where the entry's missing file is now; empty where it is gone.
    QString movedPath(const HistoryItem& item, FilePresence& files) const;
    void removeStrays(const QStringList& others) const;

    const QString m_dataFolder;
    const QString m_formerFolder;
    const QString m_folder;
    const QString m_indexPath;
    bool m_indexIsDamaged = false; ///< And in the way.
};
