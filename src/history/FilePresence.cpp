// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "history/FilePresence.h"

#include <QFile>

#include <unistd.h>

#include <algorithm>

namespace {

constexpr std::size_t mostFolders = 16; // Others are few entries' each.
constexpr std::size_t fewEntries = 50; // For which no folder is read.
constexpr std::size_t muchElse = 2; // Times the entries.

QStringView folderIn(const QString& path)
{
    return QStringView(path).first(path.lastIndexOf(u'/') + 1);
}

} // namespace

FilePresence::FilePresence(const QString& ownFolder, const QList<HistoryItem>& items)
{
    m_folders.reserve(mostFolders);
    m_folders.push_back({ownFolder + u'/', 0, FolderListing::read(ownFolder)});
    for (const auto& item : items) {
        if (Folder* folder = folderOf(item.path))
            ++folder->entries;
        else if (m_folders.size() < mostFolders)
            m_folders.push_back({folderIn(item.path).toString(), 1});
    }
    for (std::size_t i = 1; i < m_folders.size(); ++i)
        if (Folder& folder = m_folders[i]; folder.entries > fewEntries)
            folder.listing = FolderListing::read(folder.path, folder.entries * muchElse);
}

FilePresence::Folder* FilePresence::folderOf(const QString& path)
{
    const auto found = std::ranges::find(m_folders, folderIn(path), &Folder::path);
    return found == m_folders.end() ? nullptr : &*found;
}

bool FilePresence::isThere(const QString& path)
{
    Folder* folder = folderOf(path);
    if (folder && folder->listing.surelyHolds(QFile::encodeName(path.sliced(folder->path.size()))))
        return true;
    return access(QFile::encodeName(path).constData(), F_OK) == 0;
}
