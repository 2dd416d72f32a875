// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <cstdint>
#include <limits>
#include <string_view>
#include <vector>

/// The names in a folder, read once: to ask the system for each of many files takes twice as long.
/// That a name is not here proves nothing: folders cannot always be read to their end, and some do
/// not care about case.
class FolderListing final {
public:
    static constexpr std::size_t noLimit = std::numeric_limits<std::size_t>::max();

    FolderListing() = default;
    /// Empty where there are more names than that.
    static FolderListing read(const QString& folder, std::size_t most = noLimit);

    /// Whether something has that name, as the system encodes it, that is no link, for one may lead
    /// nowhere. From now on the name counts as asked for.
    bool surelyHolds(const QByteArray& name);

    /// What nobody has asked for.
    QStringList others() const;

private:
    struct Name {
        std::size_t start; ///< In m_characters.
        std::size_t length;
        std::size_t hash;
        bool mayBeLink;
        bool isAskedFor = false;
    };

    std::string_view text(const Name& name) const
    {
        return {&m_characters[name.start], name.length};
    }
    void makeSlots();

    std::vector<char> m_characters;
    std::vector<Name> m_names;
    std::vector<std::uint32_t> m_slots {0}; ///< Places in m_names plus one, by hash or behind.
};
