// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "doctor/DoctorReport.h"

#include "base/Words.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace Qt::StringLiterals;

QString DoctorReport::toText(const QList<DoctorCheck>& checks)
{
    QString text;
    for (const auto& check : checks) {
        text += u"%1  %2: %3\n"_s.arg(
            check.isOk() ? Words::tr("ok ") : Words::tr("FIX"), check.title, check.detail);
        if (!check.isOk())
            text += u"     %1\n"_s.arg(check.advice);
    }
    return text + conclusion(checks) + u'\n';
}

QString DoctorReport::conclusion(const QList<DoctorCheck>& checks)
{
    const auto wrong = std::ranges::count_if(checks, std::not_fn(&DoctorCheck::isOk));
    if (wrong == 0)
        return Words::tr("All is well.");
    return wrong == 1 ? Words::tr("One thing needs attention.")
                      : Words::tr("%n things need attention.", nullptr, int(wrong));
}

QJsonArray DoctorReport::toJson(const QList<DoctorCheck>& checks)
{
    QJsonArray array;
    for (const auto& check : checks)
        array << QJsonObject {{u"id"_s, check.id}, {u"title"_s, check.title},
            {u"ok"_s, check.isOk()}, {u"detail"_s, check.detail}, {u"advice"_s, check.advice}};
    return array;
}

Result<QList<DoctorCheck>> DoctorReport::fromJson(const QByteArray& text)
{
    const auto document = QJsonDocument::fromJson(text);
    if (!document.isArray())
        return Error::failed(Words::tr("The examination ended without a report."));
    QList<DoctorCheck> checks;
    for (const auto& value : document.array()) {
        const auto check = value.toObject();
        checks << DoctorCheck {check[u"id"].toString(), check[u"title"].toString(),
            check[u"detail"].toString(), check[u"advice"].toString()};
    }
    return checks;
}
