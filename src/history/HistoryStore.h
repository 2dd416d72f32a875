// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Prefs.h"
#include "history/HistoryFolder.h"
#include "history/Thumbnails.h"

#include <QImage>
#include <QObject>

#include <functional>

/// The recent captures, newest first, and the only one who changes them. The list is in index.json
/// when an operation returns; where that cannot be written, it holds until the program ends, and
/// the next operation tries again. Captures that the user saved nowhere are kept as private copies
/// until their entry goes. Files of the user are never written or removed here.
///
/// No operation reports a failure. Lives on the main thread.
class HistoryStore final : public QObject {
    Q_OBJECT

public:
    using Clock = std::function<QDateTime()>;
    enum class Persist { Now, Later }; ///< Later: with the next operation that is Now.

    /// Reads the index, from the folder of the program's former name if there is no data folder
    /// yet: so it comes before whatever makes one. Entries without a file are left out, which
    /// removed() tells from the event loop.
    HistoryStore(
        const Folders& folders, const Prefs& prefs, Clock clock = QDateTime::currentDateTimeUtc);
    ~HistoryStore() override;

    static HistoryStore& shared(); ///< The one that install() was called on.
    void install();

    const QList<HistoryItem>& items() const { return m_items; }

    /// Adds a capture in front and removes the oldest ones beyond the preferred number. Returns the
    /// new id; empty where the user wants no history or a private copy cannot be written.
    /// @param scale pixels per point.
    /// @param savedPath of the user's file; empty where there is none, and a copy is made.
    /// @param png the image encoded; where empty, it is encoded here if a copy is made.
    QString add(const QImage& image, double scale, const QString& savedPath, const QString& app,
        const QByteArray& png = {});

    /// After an edit. Without a saved path the image becomes the entry's private copy; a file of
    /// the user that the entry named stays as it is. Returns false where the entry is as before:
    /// the id is unknown or the copy cannot be written.
    bool update(const QString& id, const QImage& image, double scale, const QString& savedPath,
        const QByteArray& png = {});

    void remove(const HistoryItem& item, Persist persist = Persist::Now);
    void clear();

    /// If it is in memory. Otherwise it is read in the background, and thumbnailLoaded() follows,
    /// once with a null image where there is none. Memory is bounded: whoever shows one keeps it.
    std::optional<Thumbnail> thumbnail(const HistoryItem& item);

Q_SIGNALS:
    void changed(); ///< The items are others, or an item is.
    void removed(const QStringList& ids);
    void pictureChanged(const QString& id); ///< By update().
    void thumbnailLoaded(const QString& id, const Thumbnail& thumbnail);

private:
    void save();
    QString writtenCopy(
        const QString& id, const QImage& image, double scale, const QByteArray& png);
    QStringList prune();
    void drop(qsizetype index);
    void conclude(const QStringList& gone);

    const Prefs& m_prefs;
    const Clock m_clock;
    HistoryFolder m_folder;
    Thumbnails m_thumbnails;
    QList<HistoryItem> m_items;
    bool m_isSaved = true;
};
