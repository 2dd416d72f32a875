// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "capture/Files.h"

#include "base/AtomicFile.h"
#include "base/FileNames.h"
#include "base/PngWriter.h"
#include "base/Words.h"
#include "capture/Pixels.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QImageWriter>
#include <QPainter>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr int jpegQuality = 92;
constexpr double inchesPerMetre = 1 / 0.0254;

Error encodingFailed()
{
    return Error::failed(Words::tr("Couldn't encode the image."));
}

Result<QByteArray> encodePng(const QImage& image, double scale)
{
    QByteArray bytes;
    bytes.reserve(image.sizeInBytes() / 8); // What a desktop takes; it grows for photographs.
    ImageRows rows(image);
    const auto sink = [&bytes](std::span<const std::uint8_t> part) {
        bytes.append(reinterpret_cast<const char*>(part.data()), qsizetype(part.size()));
        return Result<void>();
    };
    const auto written = writePng(rows, scale, sink);
    if (!written)
        return encodingFailed();
    return bytes;
}

QImage flattenedOnWhite(const QImage& image)
{
    if (!image.hasAlphaChannel())
        return image;
    QImage flat(image.size(), QImage::Format_RGB32);
    flat.fill(Qt::white);
    QPainter painter(&flat);
    QImage plain = image;
    plain.setDevicePixelRatio(1);
    painter.drawImage(0, 0, plain);
    return flat;
}

Result<QByteArray> encodeJpeg(const QImage& image, double scale)
{
    QImage flat = samePixels(flattenedOnWhite(image));
    const int dotsPerMetre = int(std::lround(scale * 72 * inchesPerMetre));
    flat.setDotsPerMeterX(dotsPerMetre);
    flat.setDotsPerMeterY(dotsPerMetre);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QImageWriter writer(&buffer, "jpeg");
    writer.setQuality(jpegQuality);
    if (!buffer.open(QIODevice::WriteOnly) || !writer.write(flat))
        return encodingFailed();
    return bytes;
}

struct FreeName {
    QString path;
    int number;
};

/// The first name from a number on that nothing has, not even a link that leads nowhere.
FreeName nameFrom(int number, const QString& base, const QString& extension)
{
    for (;; ++number) {
        const QFileInfo candidate(FileNames::numbered(base, number, extension));
        if (!candidate.exists() && !candidate.isSymLink())
            return {candidate.filePath(), number};
    }
}

/// On the disk: the runtime folder is memory, too small for many screens, and the shared temporary
/// folder may be.
QString temporaryFolder(const Folders& folders)
{
    return folders.cache + u"/Temporary"_s;
}

Result<void> encodeTo(
    const QString& path, const QImage& image, double scale, AtomicFile::Access access)
{
    const auto bytes = Files::encode(image, Files::imageType(QFileInfo(path).suffix()), scale);
    if (!bytes)
        return bytes.error();
    return writeFile(path, *bytes, {AtomicFile::Existing::Replace, access});
}

} // namespace

ImageType Files::imageType(const QString& extension)
{
    const QString lower = extension.toLower();
    return lower == u"jpg"_s || lower == u"jpeg"_s ? ImageType::Jpeg : ImageType::Png;
}

QString Files::nextURL(
    const QString& folder, const QString& extension, const QString& prefix, const QDateTime& time)
{
    ensureFolder(folder);
    return nameFrom(1, folder + u'/' + FileNames::dated(prefix, time), extension).path;
}

void Files::ensureFolder(const QString& folder)
{
    QDir().mkpath(folder);
}

Result<QByteArray> Files::encode(const QImage& image, ImageType type, double scale)
{
    if (image.isNull())
        return encodingFailed();
    return type == ImageType::Jpeg ? encodeJpeg(image, scale) : encodePng(image, scale);
}

Result<void> Files::write(const QImage& image, const QString& path, double scale)
{
    return encodeTo(path, image, scale, AtomicFile::Access::Umask);
}

Result<QString> Files::save(const QByteArray& bytes, const QString& folder,
    const QString& extension, const QString& prefix, const QDateTime& time)
{
    ensureFolder(folder);
    return saveNew(bytes, folder + u'/' + FileNames::dated(prefix, time), extension);
}

Result<QString> Files::saveNew(
    const QByteArray& bytes, const QString& base, const QString& extension)
{
    for (int next = 1;;) {
        const auto [path, number] = nameFrom(next, base, extension);
        const auto written
            = writeFile(path, bytes, {AtomicFile::Existing::Keep, AtomicFile::Access::Umask});
        if (written)
            return path;
        if (written.error().kind != Error::Kind::Exists)
            return written.error();
        next = number + 1; // Never the same again: what took it may be nothing that we can see.
    }
}

void Files::copy(Clipboard& clipboard, const QImage& image, double scale, const QByteArray& png)
{
    QImage sized = samePixels(image);
    sized.setDevicePixelRatio(scale);
    clipboard.setImage(sized, png);
}

std::optional<QString> Files::tempPNG(
    const QImage& image, double scale, const Folders& folders, const QDateTime& time)
{
    const QString folder = temporaryFolder(folders);
    const QString name = FileNames::numbered(FileNames::dated(u"Screenshot"_s, time), 1, u"png"_s);
    const QString path = folder + u'/' + name;
    if (!ensurePrivateFolder(folder)
        || !encodeTo(path, image, scale, AtomicFile::Access::OwnerOnly))
        return std::nullopt;
    return path;
}

void Files::cleanTemporaries(const Folders& folders)
{
    QDir(temporaryFolder(folders)).removeRecursively();
}

Pending<void> Files::reveal(Workspace& workspace, const QString& path, const QString& saveFolder)
{
    if (!path.isEmpty() && QFileInfo::exists(path))
        return workspace.reveal(path);
    ensureFolder(saveFolder);
    return workspace.open(saveFolder);
}
