// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "history/FolderListing.h"
#include "history/HistoryItem.h"

/// Looks whether the files of entries are there. A folder with many of them is read at once, unless
/// it holds much else.
class FilePresence final {
public:
    /// @param ownFolder the history's, read as a whole.
    FilePresence(const QString& ownFolder, const QList<HistoryItem>& items);

    /// @param path absolute.
    bool isThere(const QString& path);

    /// What is in the own folder without having been asked for.
    QStringList others() const { return m_folders.front().listing.others(); }

private:
    struct Folder {
        QString path; ///< With a slash at its end.
        std::size_t entries = 0;
        FolderListing listing {};
    };

    Folder* folderOf(const QString& path);

    std::vector<Folder> m_folders; ///< The own one first.
};
