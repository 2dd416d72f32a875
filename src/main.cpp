// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "app/AppState.h"
#include "app/ControlServer.h"
#include "app/DoctorCommand.h"
#include "app/HistoryCommand.h"
#include "app/Rooms.h"
#include "app/TerminationSignals.h"
#include "app/TextCommand.h"
#include "app/dbus/BusService.h"
#include "base/ApplicationId.h"
#include "base/ControlClient.h"
#include "base/Language.h"
#include "base/Words.h"
#include "capture/Files.h"
#include "ui/Surfaces.h"

#include <QApplication>
#include <QDeadlineTimer>

#include <cstdio>
#include <cstring>
#include <thread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// How long the program that is replaced, or just ends, may take to finish what it writes.
constexpr auto replacement = 20s;
constexpr auto between = 20ms; ///< Looks whether it has.

/// How long a capture that runs when the program is told to end may take to reach its file.
constexpr auto lastCapture = 10s;

int fail(const Error& error)
{
    std::fprintf(stderr, "pixmallow: %s\n", error.message.toLocal8Bit().constData());
    return 2;
}

/// By the user, who is to see something, or for a request of another program.
enum class Start { Seen, Background };

/// Writes come first: a capture that runs is taken to its end.
void finishCapture(const AppState& state)
{
    const QDeadlineTimer deadline(lastCapture);
    while (state.isBusy() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

int runResident(const Folders& folders, std::unique_ptr<ControlServer> server, Start start)
{
    auto platform = makeDesktopPlatform();
    if (!platform)
        return fail(platform.error());
    Prefs prefs(folders);
    prefs.install();
    prefs.registerDefaults();
    Files::cleanTemporaries(folders);

    Rooms rooms(*platform, prefs, folders);
    HotkeyCenter hotkeys(*platform->hotkeys);
    hotkeys.install();
    AppState state(*platform, prefs, hotkeys, rooms.stages());
    state.install();
    state.start();
    QObject::connect(&state, &AppState::captureBegan, [&rooms] { rooms.captureBegins(); });
    QObject::connect(&state, &AppState::captureEnded, [&rooms] { rooms.captureEnded(); });
    QObject::connect(&rooms.historyWindow(), &HistoryWindow::captureWanted, &state,
        [&state] { state.capture(CaptureKind::Region); });
    Surfaces surfaces(*platform, prefs, rooms, state, hotkeys);

    rooms.updater().start();
    rooms.offerLeftBehind();

    const TerminationSignals signals;
    QObject::connect(&signals, &TerminationSignals::received, qApp, [&rooms] {
        rooms.editors().closeNow();
        QCoreApplication::quit();
    });
    QObject::connect(
        qApp, &QGuiApplication::commitDataRequest, qApp, [&rooms] { rooms.editors().closeNow(); });
    const auto requests = Requests::to(state, rooms);
    server->serve(requests);
    const BusService bus({requests, state, rooms.history(), folders.data});
    if (start == Start::Seen)
        requests.activate();
    const int code = QApplication::exec();
    rooms.cancelQuestions();
    finishCapture(state);
    QCoreApplication::processEvents(); // Whoever waits for that capture still hears of it.
    return code;
}

/// Becomes the resident program. Where another process is that already, the user who starts the
/// program again wants to see it; for a request of another program it does not matter which it is.
int run(const Folders& folders, Start start)
{
    const QDeadlineTimer deadline(replacement);
    for (;; std::this_thread::sleep_for(between)) {
        auto server = ControlServer::listen(folders);
        if (server)
            return runResident(folders, *std::move(server), start);
        if (server.error().kind != Error::Kind::Exists)
            return fail(server.error());
        if (start == Start::Background)
            return 0;
        auto resident = ControlClient::connect(folders);
        if (!resident)
            return fail(resident.error());
        if (*resident) {
            const auto answer = (*resident)->ask(Control::ShowPanel {});
            return answer ? 0 : fail(answer.error());
        }
        if (deadline.hasExpired()) // It is just beginning or just ending, usually.
            return fail(Error::failed(Words::tr("Pixmallow runs but does not answer.")));
    }
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication::setApplicationName(u"pixmallow"_s);
    if (argc > 1 && std::strcmp(argv[1], "--text") == 0) {
        const QCoreApplication application(argc, argv);
        Language::install();
        return runTextCommand(QCoreApplication::arguments().mid(2));
    }
    if (argc > 1 && std::strcmp(argv[1], "--list-history") == 0) {
        const QCoreApplication application(argc, argv);
        Language::install();
        return runHistoryCommand(QCoreApplication::arguments().mid(2));
    }
    if (argc > 1 && std::strcmp(argv[1], "--doctor") == 0)
        return runDoctorCommand(argc, argv);
    QApplication application(argc, argv);
    if (Language::install().textDirection() == Qt::RightToLeft)
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    QGuiApplication::setApplicationDisplayName(u"Pixmallow"_s);
    QGuiApplication::setDesktopFileName(applicationId());
    QGuiApplication::setWindowIcon(QIcon(u":/pixmallow.svg"_s));
    QApplication::setQuitOnLastWindowClosed(false);

    const auto folders = Folders::ofUser();
    const auto arguments = QCoreApplication::arguments();
    const auto start = arguments.contains(u"--background"_s) ? Start::Background : Start::Seen;
    if (arguments.contains(u"--replace"_s))
        if (const auto gone = askResidentToQuitAndWait(folders, replacement); !gone)
            return fail(gone.error());
    return run(folders, start);
}
