// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Folders.h"
#include "fun/FunStats.h"

#include <QThreadPool>

/// stats.json in the data folder, which its owner alone can read. Whatever is there that is no
/// statistics is not replaced: the first save() moves it to stats.json.damaged-<date>.
class StatsFile final {
public:
    explicit StatsFile(const Folders& folders);

    /// Nothing where there is no file or it makes no sense.
    std::optional<FunStats> load();

    /// Written in the background, as a disk may take its time; of several waiting ones the last
    /// counts. If it fails, the file before stays, and the next save() tries again.
    void save(const FunStats& stats);

    /// Waits until what was saved is on the disk, or has failed to get there.
    void flush();

private:
    Result<void> write(const QByteArray& text);

    const QString m_folder;
    const QString m_path;
    bool m_isOurs = false; ///< What the path names. After load(), belongs to the writer.
    QThreadPool m_writer; ///< One at a time. Last, as it waits for its work when it goes.
};
