// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "app/FoundEntries.h"

#include "history/HistoryCatalogue.h"

using namespace Qt::StringLiterals;

namespace {

QHash<QString, QByteArray> searchableTexts(const QList<HistoryItem>& items, const TextFiles& files)
{
    QHash<QString, QByteArray> texts;
    for (const auto& item : items)
        if (const QString text = files.read(item.id); !text.isEmpty())
            texts.insert(item.id, searchable(text));
    return texts;
}

} // namespace

QList<HistoryItem> findEntries(
    const QList<HistoryItem>& items, const TextFiles& texts, const QString& words)
{
    if (searchable(words).isEmpty())
        return items;
    HistoryCatalogue catalogue(DayCalendar::ofUser());
    catalogue.setItems(items);
    catalogue.addTexts(searchableTexts(items, texts));
    catalogue.setQuery(words);
    QList<HistoryItem> found;
    for (const HistoryItem* item : catalogue.shown())
        found << *item;
    return found;
}

QVariantMap valuesOf(const HistoryItem& item, const QString& text)
{
    QVariantMap values {{u"id"_s, item.id}, {u"date"_s, item.time().toString(Qt::ISODateWithMs)},
        {u"path"_s, item.path}, {u"width"_s, item.width}, {u"height"_s, item.height},
        {u"scale"_s, item.scale}, {u"app"_s, item.app}, {u"saved"_s, !item.cached}};
    if (!text.isEmpty())
        values.insert(u"text"_s, text);
    return values;
}
