// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/CallLater.h"
#include "base/Prefs.h"
#include "capture/OCR.h"
#include "history/HistoryStore.h"
#include "history/TextIndex.h"

/// Reads captures while nothing else is to be done, the newest first and one at a time, so that
/// they can be found by their text. What an entry says goes with the entry; all of it goes when the
/// user does not want this. Lives on the main thread.
class TextIndexer final : public QObject {
    Q_OBJECT

public:
    struct Means {
        HistoryStore& store;
        TextIndex& index;
        const Prefs& prefs;
        std::function<Pending<OCR::Result>(HistoryItem)> read; ///< In idle time.
        std::function<void()> giveUp; ///< What is being read: whoever waits hears Cancelled.
        std::function<bool()> hasPower; ///< False where it comes from a battery.
        CallLater wait = callLater;
    };

    static constexpr std::chrono::milliseconds rest = std::chrono::seconds(5); ///< After a capture.
    static constexpr std::chrono::milliseconds breath = std::chrono::milliseconds(250);
    static constexpr std::chrono::milliseconds powerPause = std::chrono::minutes(1);

    explicit TextIndexer(Means means);

    /// A capture begins: what is being read is given up until captureEnded().
    void captureBegins();
    void captureEnded();

private:
    void adoptPreference();
    void giveUp();
    void later(std::chrono::milliseconds time);
    void goOn();
    const HistoryItem* next() const;
    void read(const HistoryItem& item);

    const Means m_means;
    QSet<QString> m_unreadable; ///< Entries that failed; tried again at the next start.
    QString m_reading; ///< Id; empty while nothing is being read.
    bool m_isWanted = false; ///< What is being read, still.
    unsigned m_turn = 0; ///< Of the latest wait; earlier ones no longer count.
    bool m_isCapturing = false;
};
