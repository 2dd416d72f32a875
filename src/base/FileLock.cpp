// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/FileLock.h"

#include "base/Words.h"

#include <QFile>

#include <fcntl.h>
#include <sys/file.h>

#include <cerrno>

Result<Descriptor> lockFile(const QString& path)
{
    Descriptor file(
        open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600));
    if (file && flock(file.number(), LOCK_EX | LOCK_NB) == 0)
        return file;
    const auto kind = errno == EWOULDBLOCK ? Error::Kind::Exists : Error::Kind::Failed;
    return Error {kind, Words::tr("Couldn't lock “%1”: %2.").arg(path, systemMessage(errno))};
}
