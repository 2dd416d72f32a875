// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "history/HistoryItem.h"

#include <QSet>

/// The text that was read in captures, in a folder that only its owner can enter: one file for each
/// entry, empty where there is no text. Blocks; each function for any thread, but those that write
/// and remove for one at a time.
class TextFiles final {
public:
    explicit TextFiles(const QString& dataFolder);

    /// Null where the entry has not been read yet.
    QString read(const QString& id) const;
    QSet<QString> ids() const;

    void write(const QString& id, const QString& text) const; ///< Atomically.
    void remove(const QString& id) const;
    void removeAllBut(const QList<HistoryItem>& items) const; ///< With what a kill left behind.
    void removeAll() const;

private:
    QString pathOf(const QString& id) const;

    const QString m_folder;
};
