// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "history/ThumbnailFiles.h"

#include "base/AtomicFile.h"
#include "base/Folders.h"
#include "capture/Files.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QImageWriter>
#include <QSet>

#include <sys/stat.h>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr int jpegQuality = 85;
const QString jpegSuffix = u".jpg"_s;
const QString pngSuffix = u".png"_s;
const QStringList suffixes {jpegSuffix, pngSuffix};

std::optional<struct stat> statusOf(const QString& path)
{
    struct stat status { };
    if (stat(QFile::encodeName(path).constData(), &status) != 0)
        return std::nullopt;
    return status;
}

/// Whether a file was written after another one last changed in any way, its name included.
bool isNewer(const QString& path, const QString& than)
{
    const auto status = statusOf(path);
    const auto other = statusOf(than);
    if (!status || !other)
        return false;
    const auto written = std::pair(status->st_mtim.tv_sec, status->st_mtim.tv_nsec);
    return written >= std::pair(other->st_ctim.tv_sec, other->st_ctim.tv_nsec);
}

bool isOpaque(const QImage& image)
{
    for (int y = 0; y < image.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        if (std::any_of(row, row + image.width(), [](QRgb pixel) { return qAlpha(pixel) != 255; }))
            return false;
    }
    return true;
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

QImage ThumbnailFiles::read(const HistoryItem& item) const
{
    for (const QString& suffix : suffixes) {
        const QString path = pathOf(item.id, suffix);
        if (isHistoryId(item.id) && isNewer(path, item.path))
            return QImage(path);
    }
    return {};
}

void ThumbnailFiles::write(const QString& id, const QImage& thumbnail) const
{
    remove(id);
    if (thumbnail.isNull() || !isHistoryId(id) || !ensurePrivateFolder(m_folder))
        return;
    const bool shinesThrough = thumbnail.hasAlphaChannel();
    const QByteArray bytes = shinesThrough ? pngOf(thumbnail) : jpegOf(thumbnail);
    if (!bytes.isEmpty()) // What cannot be written is made anew when it is wanted.
        std::ignore = writeFile(pathOf(id, shinesThrough ? pngSuffix : jpegSuffix), bytes,
            {AtomicFile::Existing::Replace, AtomicFile::Access::OwnerOnly});
}

void ThumbnailFiles::remove(const QString& id) const
{
    if (isHistoryId(id))
        for (const QString& suffix : suffixes)
            QFile::remove(pathOf(id, suffix));
}

void ThumbnailFiles::removeAllBut(const QList<HistoryItem>& items) const
{
    const auto names = QDir(m_folder).entryList(QDir::Files | QDir::Hidden, QDir::Unsorted);
    if (names.isEmpty())
        return;
    QSet<QString> kept;
    kept.reserve(items.size());
    for (const auto& item : items)
        kept.insert(item.id);
    for (const QString& name : names) {
        const QString id = QFileInfo(name).completeBaseName();
        if (isUnfinishedFile(name) || (isHistoryId(id) && !kept.contains(id)))
            QFile::remove(m_folder + u'/' + name);
    }
}

QString ThumbnailFiles::pathOf(const QString& id, const QString& suffix) const
{
    return m_folder + u'/' + id + suffix;
}

QImage reduced(const QImage& image, QSize most)
{
    QSize size = image.size();
    if (size.width() > most.width() || size.height() > most.height())
        size = size.scaled(most, Qt::KeepAspectRatio).expandedTo({1, 1});
    const QImage small = image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                             .convertToFormat(QImage::Format_ARGB32_Premultiplied);
    return isOpaque(small) ? small.convertToFormat(QImage::Format_RGB32) : small;
}

QImage decoded(const QString& path)
{
    if (!QFileInfo(path).isFile()) // Something else might never come to its end.
        return {};
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    return reader.read();
}
