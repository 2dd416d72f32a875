// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "history/HistoryItem.h"

#include <QImage>

/// Reduced pictures of captures in a folder, one file each: JPEG, or PNG where something shines
/// through. Blocks; for one thread at a time, any.
class ThumbnailFiles final {
public:
    explicit ThumbnailFiles(QString folder)
        : m_folder(std::move(folder))
    {
    }

    /// Null where there is none, or it is older than the capture's file.
    QImage read(const HistoryItem& item) const;

    /// Makes the folder. Replaces what is there of the entry.
    void write(const QString& id, const QImage& thumbnail) const;

    void remove(const QString& id) const;
    void removeAllBut(const QList<HistoryItem>& items) const;

private:
    QString pathOf(const QString& id, const QString& suffix) const;

    const QString m_folder;
};

/// Within the size, never enlarged, of the same proportions; RGB32 where it is opaque.
QImage reduced(const QImage& image, QSize most);

/// Null where the file is no picture that can be read.
QImage decoded(const QString& path);
