// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "history/ThumbnailFiles.h"

#include "base/AtomicFile.h"
#include "base/Folders.h"
#include "capture/Files.h"
#include "history/FolderListing.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QImageReader>
#include <QImageWriter>

#include <fcntl.h>
#include <sys/stat.h>

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int jpegQuality = 85;
const QString jpegSuffix = u".jpg"_s;
const QString pngSuffix = u".png"_s;
const QStringList suffixes {jpegSuffix, pngSuffix};

std::int64_t nanoseconds(const timespec& time)
{
    return time.tv_sec * 1'000'000'000 + time.tv_nsec;
}

/// A thumbnail's file has the stamp of its capture as the time of its last writing.
FileStamp markOf(const QString& path)
{
    struct stat status { };
    if (stat(QFile::encodeName(path).constData(), &status) != 0)
        return std::nullopt;
    return nanoseconds(status.st_mtim);
}

void mark(const QString& path, std::int64_t stamp)
{
    const timespec time {stamp / 1'000'000'000, stamp % 1'000'000'000};
    const std::array<timespec, 2> usedAndWritten {time, time};
    utimensat(AT_FDCWD, QFile::encodeName(path).constData(), usedAndWritten.data(), 0);
}

QByteArray jpegOf(const QImage& image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QImageWriter writer(&buffer, "jpeg");
    writer.setQuality(jpegQuality);
    return writer.write(image) ? bytes : QByteArray();
}

QByteArray pngOf(const QImage& image)
{
    const auto png = Files::encode(image, ImageType::Png, 1);
    return png ? *png : QByteArray();
}

} // namespace

FileStamp stampOf(const QString& path)
{
    struct stat status { };
    if (stat(QFile::encodeName(path).constData(), &status) != 0)
        return std::nullopt;
    return nanoseconds(status.st_ctim);
}

QImage ThumbnailFiles::read(const QString& id, FileStamp stamp) const
{
    for (const QString& suffix : suffixes) {
        const QString path = pathOf(id, suffix);
        if (stamp && isHistoryId(id) && markOf(path) == stamp)
            return QImage(path);
    }
    return {};
}

void ThumbnailFiles::write(const QString& id, const QImage& thumbnail, FileStamp stamp) const
{
    remove(id);
    if (thumbnail.isNull() || !stamp || !isHistoryId(id) || !ensurePrivateFolder(m_folder))
        return;
    const bool shinesThrough = thumbnail.hasAlphaChannel();
    const QByteArray bytes = shinesThrough ? pngOf(thumbnail) : jpegOf(thumbnail);
    const QString path = pathOf(id, shinesThrough ? pngSuffix : jpegSuffix);
    // What cannot be written is made anew when it is wanted.
    if (!bytes.isEmpty()
        && writeFile(path, bytes, {AtomicFile::Existing::Replace, AtomicFile::Access::OwnerOnly}))
        mark(path, *stamp);
}

void ThumbnailFiles::remove(const QString& id) const
{
    if (isHistoryId(id))
        for (const QString& suffix : suffixes)
            QFile::remove(pathOf(id, suffix));
}

void ThumbnailFiles::removeAllBut(const QList<HistoryItem>& items) const
{
    QStringList stale;
    QMultiHash<QString, QString> names; // By id: fewer than entries, as a rule.
    for (const QString& name : FolderListing::read(m_folder).others()) {
        const QString id = name.left(name.lastIndexOf(u'.'));
        if (isUnfinishedFile(name))
            stale.append(name);
        else if (isHistoryId(id))
            names.insert(id, name);
    }
    for (const auto& item : items)
        names.remove(item.id);
    for (const QString& name : stale + names.values())
        QFile::remove(m_folder + u'/' + name);
}

QString ThumbnailFiles::pathOf(const QString& id, const QString& suffix) const
{
    return m_folder + u'/' + id + suffix;
}

QImage decoded(const QString& path)
{
    if (!QFileInfo(path).isFile()) // Something else might never come to its end.
        return {};
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    return reader.read();
}
