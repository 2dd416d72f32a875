// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/keeping/EditFolder.h"

#include "base/AtomicFile.h"
#include "base/Folders.h"
#include "base/PngWriter.h"
#include "base/Words.h"
#include "capture/Pixels.h"
#include "history/HistoryItem.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QImageReader>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr AtomicFile::Options ownerOnly {
    AtomicFile::Existing::Replace, AtomicFile::Access::OwnerOnly};

const QString recordSuffix = u".edit"_s;
const QString pictureSuffix = u".png"_s;

/// Of a file's name; none if the file is not one of ours.
std::optional<EditFolder::Name> nameOf(const QString& file, const QString& suffix)
{
    const qsizetype dot = file.indexOf(u'.');
    if (!file.endsWith(suffix) || dot < 0 || dot >= file.size() - suffix.size())
        return std::nullopt;
    EditFolder::Name name {file.first(dot), file.mid(dot + 1).chopped(suffix.size())};
    const bool isKey = std::ranges::all_of(
        name.key, [](QChar c) { return (c >= u'a' && c <= u'z') || (c >= u'0' && c <= u'9'); });
    return isHistoryId(name.owner) && isKey ? std::optional(name) : std::nullopt;
}

QStringList filesIn(const QString& path)
{
    return QDir(path).entryList(QDir::Files | QDir::Hidden, QDir::Unsorted);
}

} // namespace

QList<EditFolder::Name> EditFolder::records() const
{
    QList<Name> names;
    for (const QString& file : filesIn(m_path))
        if (const auto name = nameOf(file, recordSuffix))
            names.append(*name);
    return names;
}

Result<void> EditFolder::write(const Name& name, const KeptEdit& edit)
{
    if (const auto usable = ensurePrivateFolder(m_path); !usable)
        return usable;
    const QImage& picture = edit.capture.shot.image;
    EditRecord record {hashOf(picture), QDateTime::currentMSecsSinceEpoch(), edit};
    record.edit.capture.shot.image = {};
    const QString picturePlace = picturePath(name.owner, record.base);
    if (!QFile::exists(picturePlace))
        if (const auto written = writePicture(picturePlace, picture); !written)
            return written;
    const QByteArray bytes = record.encoded();
    if (bytes.size() > EditRecord::largest)
        return Error::failed(Words::tr("There are too many marks to keep them editable."));
    return writeFile(pathOf(name), bytes, ownerOnly);
}

Result<void> EditFolder::writePicture(const QString& path, const QImage& picture) const
{
    AtomicFile file(path, ownerOnly);
    if (const auto opened = file.open(); !opened)
        return opened;
    ImageRows rows(picture);
    const auto written = writePng(rows, 1, [&](auto bytes) { return file.write(bytes); });
    return written ? file.commit() : written;
}

Result<EditRecord> EditFolder::readRecord(const Name& name) const
{
    QFile file(pathOf(name));
    if (!file.open(QIODevice::ReadOnly))
        return Error::failed(Words::tr("The record of an edit is missing."));
    return EditRecord::decoded(file.read(EditRecord::largest + 1));
}

Result<KeptEdit> EditFolder::read(const Name& name) const
{
    auto record = readRecord(name);
    if (!record)
        return record.error();
    QImageReader reader(picturePath(name.owner, record->base), "png");
    const QImage picture = reader.read();
    if (picture.isNull() || PixelHash::of(picture) != record->base)
        return Error::failed(Words::tr("The picture of an edit is missing or damaged."));
    record->edit.capture.shot.image = picture;
    return std::move(record->edit);
}

void EditFolder::rename(const Name& from, const QString& key) const
{
    const QString to = pathOf({from.owner, key});
    if (!QFile::exists(to))
        QFile::rename(pathOf(from), to);
}

void EditFolder::remove(const Name& name) const
{
    QFile::remove(pathOf(name));
}

void EditFolder::removeOwner(const QString& owner) const
{
    removeOwners({owner});
}

void EditFolder::removeOwners(const QStringList& owners) const
{
    // Records first: one without its picture would be offered and fail.
    for (const QString& suffix : {recordSuffix, pictureSuffix})
        for (const QString& file : filesIn(m_path))
            if (const auto name = nameOf(file, suffix); name && owners.contains(name->owner))
                QFile::remove(m_path + u'/' + file);
}

void EditFolder::clear() const
{
    for (const QString& file : filesIn(m_path))
        if (nameOf(file, recordSuffix) || nameOf(file, pictureSuffix) || isUnfinishedFile(file))
            QFile::remove(m_path + u'/' + file);
}

void EditFolder::removeUnfinished() const
{
    QStringList owners;
    for (const Name& name : records())
        owners.append(name.owner);
    for (const QString& file : filesIn(m_path))
        if (const auto name = nameOf(file, pictureSuffix);
            isUnfinishedFile(file) || (name && !owners.contains(name->owner)))
            QFile::remove(m_path + u'/' + file);
}

void EditFolder::tidy(const QString& owner) const
{
    QStringList needed;
    for (const Name& name : records()) {
        if (name.owner != owner)
            continue;
        const auto record = readRecord(name);
        if (!record)
            return;
        needed.append(record->base.text());
    }
    for (const QString& file : filesIn(m_path))
        if (const auto name = nameOf(file, pictureSuffix);
            name && name->owner == owner && !needed.contains(name->key))
            QFile::remove(m_path + u'/' + file);
}

QString EditFolder::pathOf(const Name& name) const
{
    return m_path + u'/' + name.owner + u'.' + name.key + recordSuffix;
}

QString EditFolder::picturePath(const QString& owner, const PixelHash& hash) const
{
    return m_path + u'/' + owner + u'.' + hash.text() + pictureSuffix;
}

PixelHash EditFolder::hashOf(const QImage& picture)
{
    if (picture.cacheKey() != m_hashedKey) {
        m_hash = PixelHash::of(picture);
        m_hashedKey = picture.cacheKey();
    }
    return m_hash;
}
