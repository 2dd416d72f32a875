// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"

#include <QByteArray>

#include <sys/types.h>

#include <cstdint>
#include <span>

/// A file that appears whole or not at all. What is written stays out of sight, in the folder of
/// the file, until commit(); destroyed before that, or killed, it leaves the folder as it was.
/// Errors are sentences that name the path and the system's reason.
///
/// A path that names no regular file (a FIFO, /dev/null, /dev/stdout) is written straight into,
/// since there is nothing to replace; opening a FIFO waits for its reader.
class AtomicFile final {
public:
    /// What happens to a file that has the name already.
    enum class Existing {
        Keep, ///< open() or commit() fails with Error::Kind::Exists, whoever made that file.
        Replace, ///< Its permissions pass on to the new file; behind a link, the link's target.
    };
    enum class Access { Umask, OwnerOnly };
    struct Options {
        Existing existing = Existing::Keep;
        Access access = Access::Umask;
    };

    AtomicFile(QString path, Options options);
    ~AtomicFile();
    Q_DISABLE_COPY_MOVE(AtomicFile)

    Result<void> open();

    /// Appends, unbuffered. After a failure commit() fails too: no short file appears.
    Result<void> write(std::span<const std::uint8_t> bytes);

    /// On the disk first, then under its name.
    Result<void> commit();

private:
    Result<void> openTemporary(mode_t mode);
    bool publish();
    Result<void> opened(int descriptor);
    Result<void> failed(int reason);

    QString m_path;
    Options m_options;
    QByteArray m_target; ///< Empty when written straight into.
    QByteArray m_temporary; ///< Empty while the temporary file has no name.
    int m_descriptor = -1;
    std::optional<Error> m_failure;
};

/// Whether a file of this name may be what a write left behind that was killed. Only for folders in
/// which nobody is writing.
bool isUnfinishedFile(QStringView name);

/// Removes those from such a folder.
void removeUnfinishedFiles(const QString& folder);

/// All of a file at once.
Result<void> writeFile(const QString& path, const QByteArray& content, AtomicFile::Options options);
