// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/ControlClient.h"
#include "bench/Limit.h"
#include "bench/Rounds.h"
#include "bench/ScreenContent.h"
#include "tests/desktop/VirtualDesktop.h"

#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QThread>

#include <cstdio>
#include <ctime>

using namespace Qt::StringLiterals;

namespace {

constexpr Limit captureMilliseconds {40, 30};
constexpr Limit startMilliseconds {150, 150};
constexpr Limit idleMilliseconds {10, 10};
constexpr Limit idleMebibytes {45, 45};
constexpr double settleTime = 120; // Milliseconds that a capture waits before it reads the screen.

int fail(const QString& why)
{
    std::fprintf(stderr, "ResidentBench: %s\n", qPrintable(why));
    return 1;
}

/// Processor time of a process so far, its ended threads included, in milliseconds.
double cpuOf(qint64 processId)
{
    clockid_t clock {};
    timespec time {};
    if (clock_getcpuclockid(pid_t(processId), &clock) == 0)
        clock_gettime(clock, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

/// The number behind a name in /proc/PID/status.
qint64 statusOf(qint64 processId, const QByteArray& name)
{
    QFile file(u"/proc/%1/status"_s.arg(processId));
    if (file.open(QIODevice::ReadOnly))
        for (const auto& line : file.readAll().split('\n'))
            if (line.startsWith(name + ':'))
                return line.mid(name.size() + 1).simplified().split(' ').first().toLongLong();
    return 0;
}

Result<Control::Answer> ask(const Folders& folders, const Control::Request& request)
{
    for (;;) {
        auto client = ControlClient::connect(folders);
        if (!client)
            return client.error();
        if (*client)
            return (*client)->ask(request);
        QThread::msleep(1);
    }
}

/// From the start of the program until it has shown its menu.
Result<double> start(const VirtualDesktop& desktop, const Folders& folders)
{
    QElapsedTimer timer;
    timer.start();
    auto client = desktop.launch(u"pixmallow-desktop"_s, {u"--background"_s});
    if (!client)
        return client.error();
    const auto shown = ask(folders, Control::ShowPanel {});
    const double elapsed = double(timer.nsecsElapsed()) / 1e6;
    (*client)->stop();
    return shown ? Result<double>(elapsed) : Result<double>(shown.error());
}

Result<Rounds::Sample> capture(const Folders& folders, qint64 processId)
{
    QElapsedTimer timer;
    const double before = cpuOf(processId);
    timer.start();
    const auto answer = ask(folders, Control::Capture {CaptureKind::Screen, true});
    const double wall = double(timer.nsecsElapsed()) / 1e6 - settleTime;
    if (!answer)
        return answer.error();
    const auto* report = std::get_if<CaptureReport>(&*answer);
    if (!report || report->path.isEmpty())
        return Error::failed(u"The capture was not saved."_s);
    return Rounds::Sample {cpuOf(processId) - before, wall};
}

void measureIdleness(qint64 processId, int seconds)
{
    const double cpu = cpuOf(processId);
    const auto wakeUps = statusOf(processId, "voluntary_ctxt_switches");
    QThread::sleep(ulong(seconds));
    std::printf("idle for %d s: cpu ms %s, wake-ups %lld\n", seconds,
        qPrintable(judged(cpuOf(processId) - cpu, idleMilliseconds)),
        static_cast<long long>(statusOf(processId, "voluntary_ctxt_switches") - wakeUps));
}

int measure(const VirtualDesktop& desktop, int roundCount, int idleSeconds)
{
    const auto folders = Folders::ofUser();
    Rounds starts;
    std::optional<Error> failure;
    starts.addMeasured(u"start"_s, [&] {
        const auto elapsed = start(desktop, folders);
        if (!elapsed)
            failure = elapsed.error();
        return Rounds::Sample {0, elapsed ? *elapsed : 0};
    });
    starts.run(roundCount);

    auto client = desktop.launch(u"pixmallow-desktop"_s, {u"--background"_s});
    if (failure || !client)
        return fail(failure ? failure->message : client.error().message);
    const qint64 pid = (*client)->pid();
    std::ignore = ask(folders, Control::ShowPanel {});
    std::printf("start to menu, wall ms: %s, p95 %.0f\n",
        qPrintable(judged(starts.medianWall(u"start"_s), startMilliseconds)),
        starts.wall95(u"start"_s));
    std::printf("resident MiB: %s\n",
        qPrintable(judged(double(statusOf(pid, "VmRSS")) / 1024, idleMebibytes)));
    measureIdleness(pid, idleSeconds);

    Rounds captures;
    captures.addMeasured(u"capture"_s, [&] {
        const auto sample = capture(folders, pid);
        if (!sample)
            failure = sample.error();
        return sample ? *sample : Rounds::Sample {};
    });
    captures.run(roundCount);
    if (failure)
        return fail(failure->message);
    std::printf("request to file closed: cpu ms %s, p95 %.1f; wall ms %.1f, p95 %.1f\n",
        qPrintable(judged(captures.medianCpu(u"capture"_s), captureMilliseconds)),
        captures.cpu95(u"capture"_s), captures.medianWall(u"capture"_s),
        captures.wall95(u"capture"_s));
    std::printf(
        "resident MiB with its last capture: %.1f\n", double(statusOf(pid, "VmRSS")) / 1024);
    return 0;
}

} // namespace

// The resident program on a 3840 × 2160 desktop. usage: ResidentBench [ROUNDS [IDLE-SECONDS]]
int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const auto arguments = QGuiApplication::arguments();
    const int rounds = std::max(1, arguments.value(1, u"11"_s).toInt());
    const int idleSeconds = std::max(1, arguments.value(2, u"60"_s).toInt());
    const QSize size(3840, 2160);

    const auto desktop = VirtualDesktop::start({.size = size});
    if (!desktop)
        return fail(desktop.error().message);
    (*desktop)->enter();
    (*desktop)->setRootPicture(drawScreen(ScreenContent::Desk, size));
    std::printf("%d x %d, %d rounds\n", size.width(), size.height(), rounds);
    return measure(**desktop, rounds, idleSeconds);
}
