// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "app/DoctorCommand.h"

#include "cli/Print.h"
#include "doctor/DoctorReport.h"
#include "doctor/Examination.h"
#include "platform/Platform.h"

#include <QApplication>
#include <QSystemTrayIcon>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

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
    const auto printed = arguments.contains(u"--json"_s)
        ? print(QJsonValue(DoctorReport::toJson(checks)))
        : print(DoctorReport::toText(checks).toUtf8());
    if (!printed) {
        complain(printed.error().message);
        return 2;
    }
    return std::ranges::all_of(checks, &DoctorCheck::isOk) ? 0 : 1;
}
