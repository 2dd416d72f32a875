// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "history/HistoryCatalogue.h"

#include <algorithm>
#include <cstring>
#include <numeric>
#include <string_view>
#include <unordered_set>

using namespace Qt::StringLiterals;

namespace {

/// How often letters are met in text, the most frequent first.
constexpr std::string_view frequent = " etaoinsrhldcumfgpwyb";

/// Looks for the letter that is met least, and there for the whole: the letter is found sixteen or
/// more bytes at a time, where looking for two at once goes byte by byte.
class Needle final {
public:
    explicit Needle(const QByteArray& wanted)
        : m_wanted(wanted.constData(), std::size_t(wanted.size()))
    {
        std::size_t least = 0;
        for (std::size_t i = 0; i < m_wanted.size(); ++i)
            if (const auto rank = frequent.find(m_wanted[i]); rank >= least) {
                least = rank; // The greatest of all where it is not among them.
                m_rare = i;
            }
    }

    bool isIn(const QByteArray& text) const
    {
        const auto size = std::size_t(text.size());
        if (m_wanted.size() > size)
            return false;
        const char* at = text.constData() + m_rare;
        const char* const end = text.constData() + size - (m_wanted.size() - m_rare) + 1;
        while (at < end) {
            at = static_cast<const char*>(memchr(at, m_wanted[m_rare], std::size_t(end - at)));
            if (!at)
                return false;
            if (memcmp(at - m_rare, m_wanted.data(), m_wanted.size()) == 0)
                return true;
            ++at;
        }
        return m_wanted.empty();
    }

private:
    const std::string_view m_wanted;
    std::size_t m_rare = 0; ///< Place of the letter.
};

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
    QByteArray bytes = folded.toUtf8();
    bytes.squeeze(); // There may be thousands, and room for thrice the letters was made.
    return bytes;
}

HistoryCatalogue::HistoryCatalogue(DayCalendar calendar)
    : m_calendar(std::move(calendar))
{
}

QString HistoryCatalogue::wordsOf(const HistoryItem& item, const DayCalendar& calendar)
{
    return item.appName() + u' ' + fileName(item.path) + u' '
        + calendar.locale.toString(calendar.day(item), QLocale::LongFormat) + u' '
        + calendar.time(item);
}

void HistoryCatalogue::setCalendar(const DayCalendar& calendar)
{
    if (calendar.zone != m_calendar.zone || calendar.locale != m_calendar.locale) {
        for (auto& [id, searched] : m_searched)
            searched.words.clear();
        m_prepared = 0;
    }
    m_calendar = calendar;
}

void HistoryCatalogue::setItems(const QList<HistoryItem>& items)
{
    m_items = items;
    m_prepared = 0;
    m_inOrder.clear();
    for (const auto& item : std::as_const(m_items))
        m_inOrder.push_back(&m_searched[item.id]);
    if (m_searched.size() > m_inOrder.size()) { // What is known of others goes with them.
        const std::unordered_set<const Searched*> kept(m_inOrder.begin(), m_inOrder.end());
        std::erase_if(
            m_searched, [&kept](const auto& each) { return !kept.contains(&each.second); });
    }
    filter(all());
}

void HistoryCatalogue::setQuery(const QString& query)
{
    const QByteArray wanted = searchable(query);
    m_query = query;
    if (wanted == m_wanted)
        return;
    const bool isNarrower = !m_wanted.isEmpty() && wanted.contains(m_wanted);
    m_wanted = wanted;
    filter(isNarrower ? std::exchange(m_shown, {}) : all());
}

void HistoryCatalogue::addTexts(const QHash<QString, QByteArray>& texts)
{
    for (auto text = texts.begin(); text != texts.end(); ++text)
        if (const auto found = m_searched.find(text.key()); found != m_searched.end())
            found->second.text = *text;
    if (isSearching())
        filter(all());
}

HistoryItems HistoryCatalogue::all() const
{
    HistoryItems all(m_items.size());
    std::iota(all.begin(), all.end(), m_items.constData());
    return all;
}

void HistoryCatalogue::filter(const HistoryItems& among)
{
    if (!isSearching()) {
        m_shown = among;
        return;
    }
    HistoryItems found;
    for (const HistoryItem* item : among)
        if (find(*item, *m_inOrder[std::size_t(item - m_items.constData())]) != Found::No)
            found.append(item);
    m_shown = std::move(found);
}

HistoryCatalogue::Found HistoryCatalogue::find(const HistoryItem& item)
{
    return find(item, m_searched[item.id]);
}

HistoryCatalogue::Found HistoryCatalogue::find(const HistoryItem& item, Searched& searched) const
{
    const Needle wanted(m_wanted);
    if (wanted.isIn(words(item, searched)))
        return Found::InWords;
    return wanted.isIn(searched.text) ? Found::InText : Found::No;
}

bool HistoryCatalogue::prepare(int entries)
{
    const auto end = std::min(m_items.size(), m_prepared + entries);
    for (; m_prepared < end; ++m_prepared)
        std::ignore = words(m_items.at(m_prepared), *m_inOrder[std::size_t(m_prepared)]);
    return m_prepared < m_items.size();
}

const QByteArray& HistoryCatalogue::words(const HistoryItem& item, Searched& searched) const
{
    const bool isSame = searched.path.constData() == item.path.constData() // Mostly.
        || searched.path == item.path;
    if (searched.words.isEmpty() || !isSame) {
        searched.path = item.path;
        searched.words = searchable(wordsOf(item, m_calendar));
    }
    return searched.words;
}
