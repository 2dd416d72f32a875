// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "history/DayGroups.h"

#include <QHash>

#include <unordered_map>
#include <vector>

/// Text as it is compared when something is looked for: in small letters, on one line, with plain
/// blanks. UTF-8.
QByteArray searchable(const QString& text);

/// The entries that the history shows: all of them, or those that some words are found in. Every
/// keystroke asks, so what is looked through is made once.
class HistoryCatalogue final {
public:
    enum class Found { No, InWords, InText };

    explicit HistoryCatalogue(DayCalendar calendar);

    /// What entries say by themselves: program, file name, date and time.
    static QString wordsOf(const HistoryItem& item, const DayCalendar& calendar);

    void setCalendar(const DayCalendar& calendar);
    void setItems(const QList<HistoryItem>& items);
    void setQuery(const QString& query);
    /// What was read in pictures, by id, from searchable(); adds to what was set before.
    void addTexts(const QHash<QString, QByteArray>& texts);

    /// Makes the next so many entries ready to be searched. Whether some are left.
    bool prepare(int entries);

    const HistoryItems& shown() const { return m_shown; } ///< Until the items change.
    const DayCalendar& calendar() const { return m_calendar; }
    const QString& query() const { return m_query; }
    bool isSearching() const { return !m_wanted.isEmpty(); }
    bool isEmpty() const { return m_items.isEmpty(); } ///< The history itself.

    /// Where the query is found in an entry.
    Found find(const HistoryItem& item);

private:
    /// What is known of an entry.
    struct Searched {
        QString path; ///< When the words were made.
        QByteArray words, text;
    };

    void filter(const HistoryItems& among);
    HistoryItems all() const;
    const QByteArray& words(const HistoryItem& item, Searched& searched) const;
    Found find(const HistoryItem& item, Searched& searched) const;

    DayCalendar m_calendar;
    QList<HistoryItem> m_items;
    HistoryItems m_shown; ///< Among m_items.
    QString m_query;
    QByteArray m_wanted; ///< The query as it is compared.
    std::unordered_map<QString, Searched> m_searched; ///< By id.
    std::vector<Searched*> m_inOrder; ///< Of all items.
    qsizetype m_prepared = 0;
};
