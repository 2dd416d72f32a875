// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "history/ThumbnailFiles.h"

#include <QCache>
#include <QObject>
#include <QSet>
#include <QThreadPool>

#include <atomic>
#include <functional>
#include <optional>

/// A capture reduced to what a card of the history shows.
struct Thumbnail {
    QImage image; ///< Null where the capture cannot be read.
    QSizeF size; ///< Of the whole capture, in points.
};

/// Thumbnails of history entries: the latest ones in memory, all of them in files. Whatever takes
/// time happens on one other thread, so at most one capture is decoded at a time; what was asked
/// for last comes first. Lives on the main thread.
class Thumbnails final : public QObject {
    Q_OBJECT

public:
    static constexpr QSize most {416, 208}; ///< Pixels; cards are 130 points high.
    static constexpr qsizetype mostBytes = 32 * 1024 * 1024; ///< Of pixels in memory.

    explicit Thumbnails(const QString& folder);
    ~Thumbnails() override; ///< Waits for what is being written.

    /// From pixels at hand; loaded() follows.
    void make(const HistoryItem& item, const QImage& image);

    /// What is in memory; otherwise loaded() follows, unless it has already told that there is
    /// none.
    std::optional<Thumbnail> thumbnail(const HistoryItem& item);

    void forget(const QStringList& ids);
    void forgetAllBut(const QList<HistoryItem>& items);

Q_SIGNALS:
    void loaded(const QString& id, const Thumbnail& thumbnail);

private:
    void inOrder(std::function<void()> work);
    void load(const HistoryItem& item, quint64 request);
    quint64 expect(const QString& id);
    /// @param stamp with which it is to be kept in a file; none where it is there, or shall not be.
    void deliverLater(const QString& id, quint64 request, const Thumbnail& thumbnail,
        FileStamp stamp = std::nullopt);
    void deliver(const QString& id, quint64 request, const Thumbnail& thumbnail, FileStamp stamp);

    const ThumbnailFiles m_files; ///< Used on the other thread only.
    QCache<QString, Thumbnail> m_memory {mostBytes};
    QHash<QString, quint64> m_expected; ///< Entries whose thumbnail is on its way.
    QSet<QString> m_unreadable;
    quint64 m_lastRequest = 0;
    std::atomic<bool> m_isEnding = false;
    QThreadPool m_thread;
};
