// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "doctor/FolderProbe.h"

#include "base/Words.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryFile>

#include <sys/statvfs.h>

using namespace Qt::StringLiterals;

namespace {

/// The folder itself or the nearest one above it that is there.
QFileInfo nearest(const QString& path)
{
    QFileInfo info(QDir::cleanPath(path));
    while (!info.exists() && !info.isRoot() && info.absolutePath() != info.absoluteFilePath())
        info = QFileInfo(info.absolutePath());
    return info;
}

} // namespace

QString FolderProbe::problemOf(const QString& path)
{
    const auto there = nearest(path);
    if (!there.isDir())
        return Words::tr("“%1” is not a folder.").arg(there.filePath());
    if (there.absoluteFilePath() != QFileInfo(QDir::cleanPath(path)).absoluteFilePath())
        return there.isWritable()
            ? QString()
            : Words::tr("It is missing and cannot be made in “%1”.").arg(there.filePath());
    // Permissions alone tell neither of a full disk nor of one that is mounted read-only.
    QTemporaryFile file(there.absoluteFilePath() + u"/.pixmallow-XXXXXX"_s);
    const QByteArray bytes(4096, 'x');
    if (!file.open() || file.write(bytes) != bytes.size() || !file.flush())
        return Words::tr("Nothing can be written there: %1.").arg(file.errorString());
    return {};
}

qint64 FolderProbe::freeBytes(const QString& path)
{
    // Not QStorageInfo: it looks for the mount, which whoever lives in a folder of another system
    // does not see.
    struct statvfs system { };
    const QByteArray there = QFile::encodeName(nearest(path).absoluteFilePath());
    if (statvfs(there.constData(), &system) != 0)
        return -1;
    return qint64(system.f_bavail) * qint64(system.f_frsize);
}
