// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "history/FolderListing.h"

#include <QFile>

#include <dirent.h>

#include <bit>
#include <memory>

FolderListing FolderListing::read(const QString& folder, std::size_t most)
{
    FolderListing listing;
    const QByteArray path = QFile::encodeName(folder);
    const std::unique_ptr<DIR, int (*)(DIR*)> entries(opendir(path.constData()), closedir);
    while (const dirent* entry = entries ? readdir(entries.get()) : nullptr) {
        const std::string_view name(entry->d_name);
        if (name == "." || name == "..")
            continue;
        if (listing.m_names.size() == most)
            return {};
        const bool mayBeLink = entry->d_type == DT_LNK || entry->d_type == DT_UNKNOWN;
        listing.m_names.push_back({listing.m_characters.size(), name.size(),
            std::hash<std::string_view>()(name), mayBeLink});
        listing.m_characters.insert(listing.m_characters.end(), name.begin(), name.end());
    }
    listing.makeSlots();
    return listing;
}

void FolderListing::makeSlots()
{
    m_slots.assign(std::bit_ceil(2 * m_names.size() + 1), 0);
    const std::size_t mask = m_slots.size() - 1;
    for (std::uint32_t number = 0; const Name& name : m_names) {
        std::size_t slot = name.hash & mask;
        while (m_slots[slot] != 0)
            slot = (slot + 1) & mask;
        m_slots[slot] = ++number;
    }
}

bool FolderListing::surelyHolds(const QByteArray& name)
{
    const std::string_view wanted(name.constData(), std::size_t(name.size()));
    const std::size_t hash = std::hash<std::string_view>()(wanted), mask = m_slots.size() - 1;
    for (std::size_t slot = hash & mask; m_slots[slot] != 0; slot = (slot + 1) & mask) {
        Name& found = m_names[m_slots[slot] - 1];
        if (found.hash != hash || text(found) != wanted)
            continue;
        found.isAskedFor = true;
        return !found.mayBeLink;
    }
    return false;
}

QStringList FolderListing::others() const
{
    QStringList names;
    for (const Name& name : m_names)
        if (!name.isAskedFor)
            names.append(
                QFile::decodeName(QByteArray(&m_characters[name.start], qsizetype(name.length))));
    return names;
}
