// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "cli/Commands.h"
#include "cli/Print.h"
#include "cli/ResidentProgram.h"
#include "platform/Platform.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace {

QString placed(QRect rect)
{
    return u"%1,%2,%3x%4"_s.arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height());
}

Result<void> listScreens(const QList<DisplayInfo>& displays, bool json)
{
    QJsonArray array;
    QString lines;
    for (qsizetype i = 0; i < displays.size(); ++i) {
        const auto& display = displays[i];
        array.push_back(QJsonObject {{u"number"_s, i + 1}, {u"name"_s, display.name},
            {u"scale"_s, display.scale}, {u"area"_s, toJson(display.native)}});
        lines += u"%1  %2  %3  scale %4\n"_s.arg(i + 1)
                     .arg(placed(display.native), -20)
                     .arg(display.name, -10)
                     .arg(display.scale);
    }
    return json ? print(QJsonValue(array)) : print(lines.toUtf8());
}

Result<void> listWindows(const QList<Window>& windows, bool json)
{
    QJsonArray array;
    QString lines;
    for (const auto& window : windows) {
        if (window.layer != 0 || !window.onScreen)
            continue;
        const auto& application = window.application;
        array.push_back(QJsonObject {{u"id"_s, qint64(window.id)}, {u"title"_s, window.title},
            {u"app"_s, application.name}, {u"appId"_s, application.id},
            {u"pid"_s, application.processId}, {u"area"_s, toJson(window.frame)}});
        lines += u"0x%1  %2  %3  %4\n"_s.arg(qulonglong(window.id), 8, 16, QChar(u'0'))
                     .arg(placed(window.frame), -20)
                     .arg(application.name, -16)
                     .arg(window.title.simplified());
    }
    return json ? print(QJsonValue(array)) : print(lines.toUtf8());
}

/// The resident program knows how its history is kept. Returns only if that fails.
Error becomeHistoryList(const ListRequest& request)
{
    QStringList options {u"--list-history"_s};
    if (request.json)
        options << u"--json"_s;
    if (request.search)
        options << u"--search"_s << *request.search;
    return ResidentProgram::become(options);
}

} // namespace

Result<void> runList(const ListRequest& request)
{
    if (request.what == ListRequest::What::History)
        return becomeHistoryList(request);
    const auto platform = makeCapturePlatform(Residency::OneShot);
    if (!platform)
        return platform.error();
    if (request.what == ListRequest::What::Screens)
        return listScreens(platform->displays->list(), request.json);
    const auto windows = platform->capture->windows();
    return windows ? listWindows(*windows, request.json) : windows.error();
}
