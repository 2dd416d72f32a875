// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/Folders.h"

#include "base/Words.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

using namespace Qt::StringLiterals;

namespace {

QString ownFolder(const char* variable, const QString& usual)
{
    // Not QStandardPaths: it takes a relative path, which the XDG base directories forbid.
    const QString set = qEnvironmentVariable(variable);
    const QString folder = QDir::isAbsolutePath(set) ? set : QDir::home().filePath(usual);
    return QDir::cleanPath(folder) + u"/Pixmallow"_s;
}

QString runtimeFolder()
{
    // Not QStandardPaths: without the variable it creates a folder, and warns.
    const QString session = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (QDir::isAbsolutePath(session) && QFileInfo(session).isDir())
        return QDir::cleanPath(session) + u"/pixmallow"_s;
    return QDir::tempPath() + u"/pixmallow-%1"_s.arg(geteuid());
}

bool makeFolders(const QByteArray& path)
{
    if (mkdir(path.constData(), 0700) == 0 || errno == EEXIST)
        return true;
    const auto slash = path.lastIndexOf('/');
    return errno == ENOENT && slash > 0 && makeFolders(path.left(slash))
        && (mkdir(path.constData(), 0700) == 0 || errno == EEXIST);
}

} // namespace

Folders Folders::ofUser()
{
    return {
        .configuration = ownFolder("XDG_CONFIG_HOME", u".config"_s),
        .data = ownFolder("XDG_DATA_HOME", u".local/share"_s),
        .cache = ownFolder("XDG_CACHE_HOME", u".cache"_s),
        .pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation),
        .downloads = QStandardPaths::writableLocation(QStandardPaths::DownloadLocation),
        .runtime = runtimeFolder(),
        .temporary = QDir::tempPath(),
    };
}

Result<void> ensurePrivateFolder(const QString& path)
{
    const auto refuse = [&](const QString& reason) {
        return Error::failed(Words::tr("Couldn't use the folder “%1”: %2.").arg(path, reason));
    };
    const QByteArray name = QFile::encodeName(QDir::cleanPath(path));
    struct stat named { };
    struct stat folder { }; // Differs where the name is a link, which may be another user's trap.
    if (!makeFolders(name) || lstat(name.constData(), &named) != 0
        || stat(name.constData(), &folder) != 0)
        return refuse(QString::fromLocal8Bit(std::generic_category().message(errno).c_str()));
    if (!S_ISDIR(folder.st_mode))
        return refuse(Words::tr("it is a file"));
    if (named.st_uid != geteuid() || folder.st_uid != geteuid())
        return refuse(Words::tr("it belongs to another user"));
    if ((folder.st_mode & 077) != 0 && chmod(name.constData(), 0700) != 0)
        return refuse(QString::fromLocal8Bit(std::generic_category().message(errno).c_str()));
    return {};
}
