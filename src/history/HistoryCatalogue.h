// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "history/DayGroups.h"

#include <QHash>

/// Text as it is compared when something is looked for: in small letters, on one line, with plain
/// blanks. UTF-8.
QByteArray searchable(const QString& text);

/// The entries that the history shows: all of them, or those that some words are found in. Every
/// keystroke asks, so what is looked through is made once.
class HistoryCatalogue final {
public:
    enum class Found { No, InWords, InText };

    explicit HistoryCatalogue(const DayCalendar& calendar);

    /// What entries say by themselves: program, file name, date and time.
    static QString wordsOf(const HistoryItem& item, const DayCalendar& calendar);

    void setCalendar(const DayCalendar& calendar);
    void setItems(const QList<HistoryItem>& items);
    void setQuery(const QString& query);
    /// What was read in pictures, by id, from searchable(); adds to what was set before.
    void addTexts(const QHash<QString, QByteArray>& texts);
    void dropTexts();

    /// Makes the next so many entries ready to be searched. Whether some are left.
    bool prepare(int entries);

    const QList<HistoryItem>& shown() const { return m_shown; }
    const DayCalendar& calendar() const { return m_calendar; }
    const QString& query() const { return m_query; }
    bool isSearching() const { return !m_wanted.isEmpty(); }
    bool isEmpty() const { return m_items.isEmpty(); } ///< The history itself.

    /// Where the query is found in an entry.
    Found find(const HistoryItem& item);

private:
    struct Words {
        QString path; ///< Of the entry when they were made.
        QByteArray searched;
    };

    void filter(const QList<HistoryItem>& among);
    const QByteArray& words(const HistoryItem& item);

    DayCalendar m_calendar;
    QList<HistoryItem> m_items, m_shown;
    QString m_query;
    QByteArray m_wanted; ///< The query as it is compared.
    QHash<QString, Words> m_words; ///< By id.
    QHash<QString, QByteArray> m_texts; ///< By id.
    qsizetype m_prepared = 0;
};
