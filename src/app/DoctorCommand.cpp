// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "app/DoctorCommand.h"

#include "base/Language.h"
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
    const bool hasDesktop = missingDesktop().isEmpty();
    if (!hasDesktop)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const auto arguments = QCoreApplication::arguments();
    const bool isJson = arguments.contains(u"--json"_s);
    if (!isJson || arguments.contains(u"--translated"_s))
        Language::install();
    else // Scripts know the texts in English.
        QLocale::setDefault(QLocale::c());
    const auto folders = Folders::ofUser();
    Prefs prefs(folders, Prefs::Watch::Nothing);
    prefs.registerDefaults();

    const Examination examination({folders, prefs, &QSystemTrayIcon::isSystemTrayAvailable,
        arguments.contains(u"--online"_s)});
    const auto checks
        = DoctorRules::judge(examination.run(hasDesktop ? QString() : missingDesktop()));
    const auto printed = isJson ? print(QJsonValue(DoctorReport::toJson(checks)))
                                : print(DoctorReport::toText(checks).toUtf8());
    if (!printed) {
        complain(printed.error().message);
        return 2;
    }
    return std::ranges::all_of(checks, &DoctorCheck::isOk) ? 0 : 1;
}
