// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Pending.h"
#include "editor/keeping/EditJournal.h"
#include "history/HistoryStore.h"

#include <functional>

/// Sees to it that no edit is lost: journals what editors do, offers what a crash left behind, and
/// brings annotations of known pictures back to life. Keeps nothing while the user wants no
/// history, and follows the history when entries go. One for the program; main thread only.
class KeptEdits final : public QObject {
    Q_OBJECT

public:
    using Reopen = std::function<void(KeptEdit edit, std::unique_ptr<EditJournal> journal)>;

    KeptEdits(const Folders& folders, const Prefs& prefs, HistoryStore& history);
    ~KeptEdits() override; ///< Waits until what was noted is written.

    /// What a picture that is to be edited was made of; none if that is not known.
    Pending<std::optional<KeptEdit>> find(const FinishedCapture& capture);

    /// For an editor that opens; it belongs to the editor.
    std::unique_ptr<EditJournal> journal(const FinishedCapture& capture);

    void flush() { m_thread.waitForAll(); } ///< Blocks until all that was told is on the disk.

    /// How many edits the program left behind when it ended last, and nobody asked for since.
    qsizetype leftBehind() const { return m_leftBehind.size(); }

    /// Opens each of them, from the event loop. One that made the program crash twice is not left
    /// behind any more, but set aside.
    void reopen(const Reopen& open);
    void discardLeftBehind();

Q_SIGNALS:
    void failed(const QString& why); ///< An edit cannot be kept or reopened; a whole sentence.
    void leftBehindChanged();

private:
    void adoptPreference(const QString& key);
    void forget(const QStringList& historyIds);
    void settle(const QString& owner);
    void takeStock();

    HistoryStore& m_history;
    KeepingThread m_thread;
    QList<EditFolder::Name> m_leftBehind;
};
