// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Folders.h"
#include "history/TextFiles.h"

#include <QHash>
#include <QObject>
#include <QThreadPool>

#include <atomic>
#include <functional>

/// Knows which entries have been read and what they say. Files are written, removed and read on one
/// other thread, in the order in which that was asked for. Lives on the main thread.
class TextIndex final : public QObject {
    Q_OBJECT

public:
    explicit TextIndex(const Folders& folders);
    ~TextIndex() override; ///< Waits for what is being written.

    /// Looks what there is, and removes what belongs to no entry; ready() follows.
    void open(const QList<HistoryItem>& items);
    bool isReady() const { return m_isReady; }

    bool has(const QString& id) const { return m_ids.contains(id); }
    qsizetype count() const { return m_ids.size(); }
    QString text(const QString& id) const; ///< From its file.

    void put(const QString& id, const QString& text);
    void forget(const QStringList& ids);
    void clear();

    /// Reads all texts; loaded() follows, more than once if they are many.
    void load();

Q_SIGNALS:
    void ready();
    /// What entries can be searched for, by id, as searchable() makes it; also after put().
    void loaded(const QHash<QString, QByteArray>& texts);

private:
    void inOrder(std::function<void()> work);
    void deliver(QHash<QString, QByteArray> texts);

    const TextFiles m_files;
    QSet<QString> m_ids;
    bool m_isReady = false;
    std::atomic<bool> m_isEnding = false;
    QThreadPool m_thread;
};
