// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "app/HistoryCommand.h"

#include "cli/Print.h"
#include "history/HistoryCatalogue.h"
#include "history/HistoryFolder.h"
#include "history/TextFiles.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace {

struct Options {
    bool json = false;
    std::optional<QString> search {};
};

Options optionsFrom(const QStringList& words)
{
    Options options;
    for (qsizetype i = 0; i < words.size(); ++i)
        if (words[i] == u"--search"_s)
            options.search = words.value(++i);
        else if (words[i] == u"--json"_s)
            options.json = true;
    return options;
}

QHash<QString, QByteArray> textsOf(const QList<HistoryItem>& items, const TextFiles& files)
{
    QHash<QString, QByteArray> texts;
    for (const auto& item : items)
        if (const QString text = files.read(item.id); !text.isEmpty())
            texts.insert(item.id, searchable(text));
    return texts;
}

QJsonObject toJson(const HistoryItem& item, const QString& text)
{
    QJsonObject object {{u"id"_s, item.id}, {u"date"_s, item.time().toString(Qt::ISODateWithMs)},
        {u"path"_s, item.path}, {u"width"_s, item.width}, {u"height"_s, item.height},
        {u"scale"_s, item.scale}, {u"app"_s, item.app}, {u"saved"_s, !item.cached}};
    if (!text.isEmpty())
        object.insert(u"text"_s, text);
    return object;
}

QString line(const HistoryItem& item)
{
    const QString size = u"%1x%2"_s.arg(item.width).arg(item.height);
    return u"%1  %2  %3  %4\n"_s.arg(item.time().toLocalTime().toString(u"yyyy-MM-dd HH:mm:ss"_s))
        .arg(size, -11)
        .arg(item.app.isEmpty() ? u"-"_s : item.app, -16)
        .arg(item.path);
}

} // namespace

int runHistoryCommand(const QStringList& words)
{
    const auto folders = Folders::ofUser();
    const auto items = HistoryFolder::read(folders);
    if (!items) {
        complain(items.error().message);
        return 2;
    }
    const TextFiles texts(folders.data);
    HistoryCatalogue catalogue(DayCalendar::ofUser());
    catalogue.setItems(*items);
    const Options options = optionsFrom(words);
    if (options.search) {
        catalogue.addTexts(textsOf(*items, texts));
        catalogue.setQuery(*options.search);
    }
    QJsonArray array;
    QString lines;
    for (const HistoryItem* item : catalogue.shown())
        if (options.json)
            array.append(toJson(*item, texts.read(item->id)));
        else
            lines += line(*item);
    const auto printed = options.json ? print(QJsonValue(array)) : print(lines.toUtf8());
    if (!printed)
        complain(printed.error().message);
    return printed ? 0 : 2;
}
