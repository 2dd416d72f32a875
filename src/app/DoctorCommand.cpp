// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "app/DoctorCommand.h"

#include "cli/Print.h"
#include "doctor/DoctorRules.h"
#include "doctor/Examination.h"
#include "platform/Platform.h"

#include <QApplication>
#include <QJsonArray>
#include <QSystemTrayIcon>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QJsonArray toJson(const QList<DoctorCheck>& checks)
{
    QJsonArray array;
    for (const auto& check : checks)
        array << QJsonObject {{u"id"_s, check.id}, {u"title"_s, check.title},
            {u"ok"_s, check.isOk()}, {u"detail"_s, check.detail}, {u"advice"_s, check.advice}};
    return array;
}

QString toText(const QList<DoctorCheck>& checks)
{
    QString text;
    for (const auto& check : checks) {
        text
            += u"%1  %2: %3\n"_s.arg(check.isOk() ? u"ok "_s : u"FIX"_s, check.title, check.detail);
        if (!check.isOk())
            text += u"     %1\n"_s.arg(check.advice);
    }
    const auto wrong = std::ranges::count_if(checks, std::not_fn(&DoctorCheck::isOk));
    return text
        + (wrong == 0        ? u"All is well.\n"_s
                : wrong == 1 ? u"One thing needs attention.\n"_s
                             : u"%1 things need attention.\n"_s.arg(wrong));
}

/// The toolkit ends the program where it finds no desktop, so that is found out before.
QString missingDesktop()
{
    const auto platform = makeCapturePlatform(Residency::OneShot);
    return platform ? QString() : platform.error().message;
}

} // namespace

int runDoctorCommand(int argc, char** argv)
{
    const QString noDesktop = missingDesktop();
    if (!noDesktop.isEmpty())
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const auto arguments = QCoreApplication::arguments();
    const auto folders = Folders::ofUser();
    Prefs prefs(folders, Prefs::Watch::Nothing);
    prefs.registerDefaults();

    const Examination examination({folders, prefs, &QSystemTrayIcon::isSystemTrayAvailable,
        arguments.contains(u"--online"_s)});
    const auto checks = DoctorRules::judge(examination.run(noDesktop));
    const auto printed = arguments.contains(u"--json"_s) ? print(QJsonValue(toJson(checks)))
                                                         : print(toText(checks).toUtf8());
    if (!printed) {
        complain(printed.error().message);
        return 2;
    }
    return std::ranges::all_of(checks, &DoctorCheck::isOk) ? 0 : 1;
}
