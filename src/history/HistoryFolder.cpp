// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "history/HistoryFolder.h"

#include "base/AtomicFile.h"
#include "base/SetAside.h"
#include "history/HistoryIndex.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <dirent.h>
#include <unistd.h>

#include <memory>
#include <string>
#include <unordered_map>

using namespace Qt::StringLiterals;

namespace {

constexpr AtomicFile::Options ownerOnly {
    AtomicFile::Existing::Replace, AtomicFile::Access::OwnerOnly};

const QString copySuffix = u".png"_s;

/// A write that is cut off leaves one file behind. Where there are many, something else happened,
/// such as an older index put back, and they are not ours to remove.
constexpr qsizetype mostStrays = 4;

} // namespace

/// What is in a folder, read once: to ask the system for each of many files takes four times as
/// long.
class HistoryFolder::Listing final {
public:
    explicit Listing(const QString& folder)
        : m_prefix(QFile::encodeName(folder) + '/')
    {
        const std::unique_ptr<DIR, int (*)(DIR*)> entries(opendir(m_prefix.constData()), closedir);
        while (const dirent* entry = entries ? readdir(entries.get()) : nullptr)
            m_isNamed.emplace(entry->d_name, false);
    }

    /// Whether there is such a file, here or elsewhere. One here is named from now on.
    bool exists(const QString& path)
    {
        const QByteArray encoded = QFile::encodeName(path);
        const auto slash = encoded.lastIndexOf('/');
        if (slash + 1 != m_prefix.size() || !encoded.startsWith(m_prefix))
            return access(encoded.constData(), F_OK) == 0;
        const auto found = m_isNamed.find(encoded.constData() + m_prefix.size());
        if (found == m_isNamed.end())
            return false;
        found->second = true;
        return true;
    }

    QStringList unnamed() const
    {
        QStringList names;
        for (const auto& [name, isNamed] : m_isNamed)
            if (!isNamed)
                names.append(QFile::decodeName(name.c_str()));
        return names;
    }

private:
    const QByteArray m_prefix;
    std::unordered_map<std::string, bool> m_isNamed;
};

HistoryFolder::HistoryFolder(const Folders& folders)
    : m_dataFolder(folders.data)
    , m_formerFolder(QFileInfo(folders.data).path() + u"/Glimmerbox"_s)
    , m_folder(folders.data + u"/History"_s)
    , m_indexPath(m_folder + u"/index.json"_s)
{
}

HistoryFolder::Content HistoryFolder::open()
{
    if (QFileInfo(m_formerFolder).isDir() && !QFileInfo::exists(m_dataFolder))
        QDir().rename(m_formerFolder, m_dataFolder);
    Content content;
    if (!ensurePrivateFolder(m_folder) || !QFileInfo::exists(m_indexPath))
        return content;
    auto text = readIndex();
    auto items = text ? HistoryIndex::parse(std::move(*text)) : std::nullopt;
    if (!items) {
        m_indexIsDamaged = !setAside(m_indexPath);
        return content;
    }
    Listing listing(m_folder);
    for (auto& item : *items) {
        if (listing.exists(item.path))
            continue;
        item.path = movedPath(item, listing);
        if (item.path.isEmpty())
            content.gone.append(item.id);
        else
            content.isMoved = true;
    }
    if (!content.gone.isEmpty())
        items->removeIf([](const HistoryItem& item) { return item.path.isEmpty(); });
    content.items = std::move(*items);
    removeStrays(listing.unnamed());
    return content;
}

std::optional<QByteArray> HistoryFolder::readIndex()
{
    QFile file(m_indexPath);
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    QByteArray text = file.readAll();
    return file.error() == QFile::NoError ? std::optional(std::move(text)) : std::nullopt;
}

QString HistoryFolder::movedPath(const HistoryItem& item, Listing& listing) const
{
    if (item.path.startsWith(m_formerFolder + u'/')) {
        const QString moved = m_dataFolder + item.path.mid(m_formerFolder.size());
        if (listing.exists(moved))
            return moved;
    }
    // The user's home may have another name now.
    const QString copy = copyPath(item.id);
    return item.cached && isHistoryId(item.id) && listing.exists(copy) ? copy : QString();
}

void HistoryFolder::removeStrays(const QStringList& unnamed) const
{
    QStringList strays;
    for (const QString& name : unnamed) {
        if (name.startsWith(u"index.json.damaged-"_s))
            return; // What it names may be wanted again.
        const bool isCopy = name.endsWith(copySuffix)
            && isHistoryId(QStringView(name).chopped(copySuffix.size()));
        if (isCopy || isUnfinishedFile(name))
            strays.append(name);
    }
    if (strays.size() <= mostStrays)
        for (const QString& name : strays)
            QFile::remove(m_folder + u'/' + name);
}

Result<void> HistoryFolder::writeIndex(const QByteArray& text)
{
    if (const auto usable = ensurePrivateFolder(m_folder); !usable)
        return usable;
    if (m_indexIsDamaged && QFileInfo::exists(m_indexPath))
        if (const auto moved = setAside(m_indexPath); !moved)
            return moved;
    m_indexIsDamaged = false;
    return writeFile(m_indexPath, text, ownerOnly);
}

QString HistoryFolder::copyPath(const QString& id) const
{
    return m_folder + u'/' + id + copySuffix;
}

bool HistoryFolder::holdsCopyOf(const HistoryItem& item) const
{
    return item.cached && isHistoryId(item.id) && item.path == copyPath(item.id);
}

Result<void> HistoryFolder::writeCopy(const QString& id, const QByteArray& png)
{
    if (!isHistoryId(id))
        return Error::failed(u"Couldn't keep a copy of “%1”: this is no name for one."_s.arg(id));
    if (const auto usable = ensurePrivateFolder(m_folder); !usable)
        return usable;
    return writeFile(copyPath(id), png, ownerOnly);
}

void HistoryFolder::removeCopy(const HistoryItem& item)
{
    if (holdsCopyOf(item))
        QFile::remove(item.path);
}
