// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "app/HistoryCommand.h"

#include "app/FoundEntries.h"
#include "cli/Print.h"
#include "history/HistoryFolder.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace {

struct Options {
    bool json = false;
    QString search {};
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
    const Options options = optionsFrom(words);
    QJsonArray array;
    QString lines;
    for (const auto& item : findEntries(*items, texts, options.search))
        if (options.json)
            array.append(QJsonObject::fromVariantMap(valuesOf(item, texts.read(item.id))));
        else
            lines += line(item);
    const auto printed = options.json ? print(QJsonValue(array)) : print(lines.toUtf8());
    if (!printed)
        complain(printed.error().message);
    return printed ? 0 : 2;
}
