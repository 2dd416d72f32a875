// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "history/TextFiles.h"

#include "base/AtomicFile.h"
#include "base/Folders.h"
#include "history/FolderListing.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

const QString suffix = u".txt"_s;

/// Empty where a file is not of an entry.
QString idIn(const QString& name)
{
    const QString id = name.chopped(std::min(suffix.size(), name.size()));
    return name.endsWith(suffix) && isHistoryId(id) ? id : QString();
}

} // namespace

TextFiles::TextFiles(const QString& dataFolder)
    : m_folder(dataFolder + u"/History/Texts"_s)
{
}

QString TextFiles::pathOf(const QString& id) const
{
    return m_folder + u'/' + id + suffix;
}

QString TextFiles::read(const QString& id) const
{
    QFile file(pathOf(id));
    if (!isHistoryId(id) || !file.open(QIODevice::ReadOnly))
        return {};
    const QString text = QString::fromUtf8(file.readAll());
    return text.isNull() ? u""_s : text;
}

QSet<QString> TextFiles::ids() const
{
    QSet<QString> ids;
    for (const QString& name : FolderListing::read(m_folder).others())
        if (const QString id = idIn(name); !id.isEmpty())
            ids.insert(id);
    return ids;
}

void TextFiles::write(const QString& id, const QString& text) const
{
    if (!isHistoryId(id) || !ensurePrivateFolder(m_folder))
        return;
    // One that cannot be written is read again at the next start.
    std::ignore = writeFile(
        pathOf(id), text.toUtf8(), {AtomicFile::Existing::Replace, AtomicFile::Access::OwnerOnly});
}

void TextFiles::remove(const QString& id) const
{
    if (isHistoryId(id))
        QFile::remove(pathOf(id));
}

void TextFiles::removeAllBut(const QList<HistoryItem>& items) const
{
    QSet<QString> kept;
    for (const auto& item : items)
        kept.insert(item.id);
    for (const QString& name : FolderListing::read(m_folder).others()) {
        const QString id = idIn(name);
        if (isUnfinishedFile(name) || (!id.isEmpty() && !kept.contains(id)))
            QFile::remove(m_folder + u'/' + name);
    }
}

void TextFiles::removeAll() const
{
    removeAllBut({});
    QDir().rmdir(m_folder); // Whatever else somebody put there stays.
}
