// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "history/HistoryFolder.h"

#include "base/AtomicFile.h"
#include "base/SetAside.h"
#include "base/Words.h"
#include "history/FilePresence.h"
#include "history/HistoryIndex.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr AtomicFile::Options ownerOnly {
    AtomicFile::Existing::Replace, AtomicFile::Access::OwnerOnly};

const QString copySuffix = u".png"_s;

/// A write that is cut off leaves one file behind. Where there are many, something else happened,
/// such as an older index put back, and they are not ours to remove.
constexpr qsizetype mostStrays = 4;

} // namespace

HistoryFolder::HistoryFolder(const Folders& folders)
    : m_dataFolder(folders.data)
    , m_formerFolder(QFileInfo(folders.data).path() + u"/Glimmerbox"_s)
    , m_folder(folders.data + u"/History"_s)
    , m_indexPath(m_folder + u"/index.json"_s)
{
}

Result<QList<HistoryItem>> HistoryFolder::read(const Folders& folders)
{
    HistoryFolder folder(folders);
    if (!QFileInfo::exists(folder.m_indexPath))
        return QList<HistoryItem>();
    auto text = folder.readIndex();
    auto items = text ? HistoryIndex::parse(std::move(*text)) : std::nullopt;
    if (!items)
        return Error::failed(
            Words::tr("“%1” makes no sense as an index of captures.").arg(folder.m_indexPath));
    FilePresence files(folder.m_folder, *items);
    items->removeIf([&files](const HistoryItem& item) { return !files.isThere(item.path); });
    return *std::move(items);
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
    FilePresence files(m_folder, *items);
    for (auto& item : *items) {
        if (files.isThere(item.path))
            continue;
        item.path = movedPath(item, files);
        if (item.path.isEmpty())
            content.gone.append(item.id);
        else
            content.isMoved = true;
    }
    if (!content.gone.isEmpty())
        items->removeIf([](const HistoryItem& item) { return item.path.isEmpty(); });
    content.items = std::move(*items);
    removeStrays(files.others());
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

QString HistoryFolder::movedPath(const HistoryItem& item, FilePresence& files) const
{
    if (item.path.startsWith(m_formerFolder + u'/')) {
        const QString moved = m_dataFolder + item.path.mid(m_formerFolder.size());
        if (files.isThere(moved))
            return moved;
    }
    // The user's home may have another name now.
    const QString copy = copyPath(item.id);
    return item.cached && isHistoryId(item.id) && files.isThere(copy) ? copy : QString();
}

void HistoryFolder::removeStrays(const QStringList& others) const
{
    QStringList strays;
    for (const QString& name : others) {
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
        return Error::failed(
            Words::tr("Couldn't keep a copy of “%1”: this is no name for one.").arg(id));
    if (const auto usable = ensurePrivateFolder(m_folder); !usable)
        return usable;
    return writeFile(copyPath(id), png, ownerOnly);
}

void HistoryFolder::removeCopy(const HistoryItem& item)
{
    if (holdsCopyOf(item))
        QFile::remove(item.path);
}
