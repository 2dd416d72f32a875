// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "fun/StatsFile.h"

#include "base/AtomicFile.h"
#include "base/SetAside.h"

#include <QFile>
#include <QFileInfo>

#include <tuple>

using namespace Qt::StringLiterals;

namespace {

/// A hundred times what a capture on each day of a lifetime takes.
constexpr qint64 mostBytes = 64 << 20;

} // namespace

StatsFile::StatsFile(const Folders& folders)
    : m_folder(folders.data)
    , m_path(m_folder + u"/stats.json"_s)
{
    m_writer.setMaxThreadCount(1);
}

std::optional<FunStats> StatsFile::load()
{
    QFile file(m_path);
    // Opening a pipe would wait for somebody to write into it.
    if (!QFileInfo(m_path).isFile() || !file.open(QIODevice::ReadOnly) || file.size() > mostBytes)
        return std::nullopt;
    auto stats = FunStats::fromJson(file.readAll());
    m_isOurs = stats.has_value();
    return stats;
}

void StatsFile::save(const FunStats& stats)
{
    m_writer.clear(); // What still waits there is older.
    m_writer.start([this, stats] { std::ignore = write(stats.toJson()); });
}

void StatsFile::flush()
{
    m_writer.waitForDone();
}

Result<void> StatsFile::write(const QByteArray& text)
{
    if (const auto usable = ensurePrivateFolder(m_folder); !usable)
        return usable;
    removeUnfinishedFiles(m_folder); // Nobody else writes there.
    if (!m_isOurs && QFileInfo::exists(m_path))
        if (const auto moved = setAside(m_path); !moved)
            return moved;
    const auto written
        = writeFile(m_path, text, {AtomicFile::Existing::Replace, AtomicFile::Access::OwnerOnly});
    m_isOurs = m_isOurs || written;
    return written;
}
