// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "history/HistoryItem.h"

#include <QImage>

#include <cstdint>
#include <optional>

/// When a file last changed in any way, its name included: nanoseconds since 1970. None where there
/// is no file.
using FileStamp = std::optional<std::int64_t>;
FileStamp stampOf(const QString& path);

/// Reduced pictures of captures in a folder, one file each: JPEG, or PNG where something shines
/// through. Blocks; for one thread at a time, any.
class ThumbnailFiles final {
public:
    explicit ThumbnailFiles(QString folder)
        : m_folder(std::move(folder))
    {
    }

    /// Null where there is none of that stamp.
    QImage read(const QString& id, FileStamp stamp) const;

    /// Makes the folder. Replaces what is there of the entry.
    /// @param stamp of the capture's file when it had these pixels.
    void write(const QString& id, const QImage& thumbnail, FileStamp stamp) const;

    void remove(const QString& id) const;
    void removeAllBut(const QList<HistoryItem>& items) const;

private:
    QString pathOf(const QString& id, const QString& suffix) const;

    const QString m_folder;
};

/// Null where the file is no picture that can be read.
QImage decoded(const QString& path);
