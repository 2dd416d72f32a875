// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "history/HistoryCatalogue.h"

#include <QSet>

#include <algorithm>
#include <cstring>

using namespace Qt::StringLiterals;

namespace {

/// Several times as fast as what the toolkit does for text.
bool contains(const QByteArray& text, const QByteArray& wanted)
{
    return memmem(text.constData(), std::size_t(text.size()), wanted.constData(),
               std::size_t(wanted.size()))
        != nullptr;
}

QString fileName(const QString& path)
{
    return path.mid(path.lastIndexOf(u'/') + 1);
}

} // namespace

QByteArray searchable(const QString& text)
{
    QString folded = text.toLower();
    // Dates of some languages, and recognised text, have blanks that nobody types.
    for (QChar& character : folded)
        if (character.isSpace())
            character = u' ';
    return folded.toUtf8();
}

HistoryCatalogue::HistoryCatalogue(const DayCalendar& calendar)
    : m_calendar(calendar)
{
}

QString HistoryCatalogue::wordsOf(const HistoryItem& item, const DayCalendar& calendar)
{
    return item.app + u' ' + fileName(item.path) + u' '
        + calendar.locale.toString(calendar.day(item), QLocale::LongFormat) + u' '
        + calendar.time(item);
}

void HistoryCatalogue::setCalendar(const DayCalendar& calendar)
{
    if (calendar.zone != m_calendar.zone || calendar.locale != m_calendar.locale) {
        m_words.clear();
        m_prepared = 0;
    }
    m_calendar = calendar;
}

void HistoryCatalogue::setItems(const QList<HistoryItem>& items)
{
    if (items.size() < m_words.size() || items.size() < m_texts.size()) {
        QSet<QString> ids;
        for (const auto& item : items)
            ids.insert(item.id);
        m_words.removeIf([&ids](auto each) { return !ids.contains(each.key()); });
        m_texts.removeIf([&ids](auto each) { return !ids.contains(each.key()); });
    }
    m_items = items;
    m_prepared = 0;
    filter(m_items);
}

void HistoryCatalogue::setQuery(const QString& query)
{
    const QByteArray wanted = searchable(query);
    m_query = query;
    if (wanted == m_wanted)
        return;
    const bool isNarrower = !m_wanted.isEmpty() && contains(wanted, m_wanted);
    m_wanted = wanted;
    filter(isNarrower ? std::exchange(m_shown, {}) : m_items);
}

void HistoryCatalogue::addTexts(const QHash<QString, QByteArray>& texts)
{
    m_texts.insert(texts);
    if (isSearching())
        filter(m_items);
}

void HistoryCatalogue::dropTexts()
{
    m_texts.clear();
    if (isSearching())
        filter(m_items);
}

void HistoryCatalogue::filter(const QList<HistoryItem>& among)
{
    if (!isSearching()) {
        m_shown = among;
        return;
    }
    QList<HistoryItem> found;
    for (const auto& item : among)
        if (find(item) != Found::No)
            found.append(item);
    m_shown = std::move(found);
}

HistoryCatalogue::Found HistoryCatalogue::find(const HistoryItem& item)
{
    if (contains(words(item), m_wanted))
        return Found::InWords;
    const auto text = m_texts.constFind(item.id);
    return text != m_texts.cend() && contains(*text, m_wanted) ? Found::InText : Found::No;
}

bool HistoryCatalogue::prepare(int entries)
{
    const auto end = std::min(m_items.size(), m_prepared + entries);
    for (; m_prepared < end; ++m_prepared)
        std::ignore = words(m_items[m_prepared]);
    return m_prepared < m_items.size();
}

const QByteArray& HistoryCatalogue::words(const HistoryItem& item)
{
    Words& words = m_words[item.id];
    if (words.path != item.path)
        words = {item.path, searchable(wordsOf(item, m_calendar))};
    return words.searched;
}
