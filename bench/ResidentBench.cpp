// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/Bitmap.h"
#include "base/ControlClient.h"
#include "base/Descriptor.h"
#include "base/PngWriter.h"
#include "base/Prefs.h"
#include "bench/Limit.h"
#include "bench/Rounds.h"
#include "bench/ScreenContent.h"
#include "tests/desktop/VirtualDesktop.h"

#include <QBuffer>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QThread>

#include <poll.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstring>
#include <ctime>

using namespace Qt::StringLiterals;

namespace {

// Where QImage::save takes as long as this for the same picture. On other machines, the share
// counts.
constexpr double saveMilliseconds = 434;
constexpr Limit captureMilliseconds {40, 30};
constexpr Limit captureOfSave {
    captureMilliseconds.target / saveMilliseconds, captureMilliseconds.goal / saveMilliseconds};
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

/// Sees files of a folder being closed after they were written.
class ClosedFiles final {
public:
    explicit ClosedFiles(const QString& folder)
        : m_inotify(inotify_init1(IN_CLOEXEC | IN_NONBLOCK))
    {
        inotify_add_watch(
            m_inotify.number(), QFile::encodeName(folder).constData(), IN_CLOSE_WRITE);
    }

    /// The next one; false where none comes within five seconds.
    bool wait()
    {
        pollfd readable {m_inotify.number(), POLLIN, 0};
        if (poll(&readable, 1, 5000) != 1)
            return false;
        std::array<char, 4096> events {};
        return read(m_inotify.number(), events.data(), events.size()) > 0;
    }

private:
    Descriptor m_inotify;
};

/// Waits until a process has stopped working; its processor time then.
double cpuWhenQuiet(qint64 processId)
{
    for (double before = 0, now = cpuOf(processId);; now = cpuOf(processId)) {
        if (now - before < 0.3) // What a process that waits uses in between.
            return now;
        before = now;
        QThread::msleep(50);
    }
}

Bitmap bitmapOf(const QImage& picture)
{
    Bitmap bitmap(picture.size(), PixelFormat::Rgb32);
    for (int y = 0; y < picture.height(); ++y)
        std::memcpy(bitmap.row(y), picture.constScanLine(y), std::size_t(picture.width()) * 4);
    return bitmap;
}

void encode(const Bitmap& bitmap)
{
    BitmapRows rows(bitmap);
    std::ignore = writePng(rows, 1, [](std::span<const std::uint8_t>) { return Result<void>(); });
}

struct CaptureCosts {
    Rounds::Sample untilClosed; ///< From the request until the file was closed.
    Rounds::Sample afterwards; ///< Effect, history and thumbnail; until all is quiet.
};

Result<CaptureCosts> capture(const VirtualDesktop& desktop, const Folders& folders, qint64 pid)
{
    const QString folder = desktop.home() + u"/Pictures/Pixmallow"_s;
    QDir().mkpath(folder);
    ClosedFiles files(folder);
    QElapsedTimer timer;
    const double before = cpuWhenQuiet(pid);
    timer.start();
    const auto answer = ask(folders, Control::Capture {CaptureKind::Screen, false});
    if (!answer)
        return answer.error();
    if (!files.wait())
        return Error::failed(u"The capture was not saved."_s);
    const double closed = cpuOf(pid);
    const double wall = double(timer.nsecsElapsed()) / 1e6;
    const double quiet = cpuWhenQuiet(pid);
    return CaptureCosts {{closed - before, wall - settleTime}, {quiet - closed, 0}};
}

/// The resident program, listening, its menu shown and closed again.
struct Started {
    std::unique_ptr<Client> client;
    double menu; ///< Milliseconds from its start until it had shown the menu.
};

Result<Started> start(VirtualDesktop& desktop, const Folders& folders)
{
    QElapsedTimer timer;
    timer.start();
    auto client = desktop.launch(u"pixmallow-desktop"_s, {u"--background"_s});
    if (!client)
        return client.error();
    const auto shown = ask(folders, Control::ShowPanel {});
    if (!shown)
        return shown.error();
    const double elapsed = double(timer.nsecsElapsed()) / 1e6;
    desktop.key("Escape");
    cpuWhenQuiet((*client)->pid());
    return Started {*std::move(client), elapsed};
}

/// What a capture that has just been taken took, named for whoever reads it.
void addCosts(Rounds& rounds, const QString& name, std::function<Result<CaptureCosts>()> take,
    std::optional<Error>& failure)
{
    const auto afterwards = std::make_shared<Rounds::Sample>();
    rounds.addMeasured(name, [=, &failure] {
        const auto costs = take();
        if (!costs)
            failure = costs.error();
        *afterwards = costs ? costs->afterwards : Rounds::Sample {};
        return costs ? costs->untilClosed : Rounds::Sample {};
    });
    rounds.addMeasured(name + u" afterwards"_s, [afterwards] { return *afterwards; });
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

void print(const Rounds& rounds, const QString& name)
{
    std::printf("%s, request to file closed: cpu ms %s, p95 %.1f; wall ms %.1f, p95 %.1f\n",
        qPrintable(name), qPrintable(judged(rounds.medianCpu(name), captureMilliseconds)),
        rounds.cpu95(name), rounds.medianWall(name), rounds.wall95(name));
    const QString afterwards = name + u" afterwards"_s;
    std::printf("%s, effect, history and thumbnail after that: cpu ms %.1f, p95 %.1f\n",
        qPrintable(name), rounds.medianCpu(afterwards), rounds.cpu95(afterwards));
}

/// A program that has just started, again and again.
Result<void> measureStarts(VirtualDesktop& desktop, int roundCount)
{
    const auto folders = Folders::ofUser();
    const QString menu = u"start"_s, first = u"first capture"_s;
    std::optional<Error> failure;
    std::unique_ptr<Client> running;
    Rounds rounds;
    rounds.addMeasured(menu, [&] {
        auto started = start(desktop, folders);
        if (!started) {
            failure = started.error();
            return Rounds::Sample {};
        }
        running = std::move(started->client);
        return Rounds::Sample {0, started->menu};
    });
    addCosts(
        rounds, first,
        [&]() -> Result<CaptureCosts> {
            if (!running)
                return *failure;
            const auto costs = capture(desktop, folders, running->pid());
            running.reset();
            return costs;
        },
        failure);
    rounds.run(roundCount);
    if (failure)
        return *failure;
    std::printf("start to menu, wall ms: %s, p95 %.0f\n",
        qPrintable(judged(rounds.medianWall(menu), startMilliseconds)), rounds.wall95(menu));
    print(rounds, first);
    return {};
}

Result<void> measureResident(
    VirtualDesktop& desktop, const QImage& picture, int roundCount, int idleSeconds)
{
    const auto folders = Folders::ofUser();
    const auto started = start(desktop, folders);
    if (!started)
        return started.error();
    const qint64 pid = started->client->pid();
    std::printf("resident MiB: %s\n",
        qPrintable(judged(double(statusOf(pid, "VmRSS")) / 1024, idleMebibytes)));
    measureIdleness(pid, idleSeconds);

    const QString later = u"later ones"_s, encoding = u"encoding"_s, copying = u"memcpy"_s,
                  saving = u"QImage::save"_s;
    const Bitmap bitmap = bitmapOf(picture);
    std::optional<Error> failure;
    Rounds rounds;
    addCosts(
        rounds, later, [&] { return capture(desktop, folders, pid); }, failure);
    rounds.add(encoding, [&] { encode(bitmap); });
    QImage copied = picture.copy();
    rounds.add(copying, [&] {
        std::memcpy(copied.bits(), picture.constBits(), std::size_t(picture.sizeInBytes()));
    });
    rounds.add(saving, [&] {
        QBuffer file;
        picture.save(&file, "PNG");
    });
    rounds.run(roundCount);
    if (failure)
        return *failure;
    print(rounds, later);
    std::printf("QImage::save of the picture: cpu ms %.1f; a capture takes %s of it\n",
        rounds.medianCpu(saving), qPrintable(judged(rounds.ratio(later, saving), captureOfSave)));
    std::printf("encoding alone, in this process: cpu ms %.1f; a capture takes %.2f of it\n",
        rounds.medianCpu(encoding), rounds.ratio(later, encoding));
    std::printf("memcpy of the picture: cpu ms %.1f; a capture takes %.1f of it\n",
        rounds.medianCpu(copying), rounds.ratio(later, copying));
    std::printf(
        "resident MiB with its last capture: %.1f\n", double(statusOf(pid, "VmRSS")) / 1024);
    return {};
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
    const QImage picture = drawScreen(ScreenContent::Desk, {3840, 2160});

    const auto desktop = VirtualDesktop::start({.size = picture.size()});
    if (!desktop)
        return fail(desktop.error().message);
    (*desktop)->enter();
    (*desktop)->setRootPicture(picture);
    const Folders folders = Folders::ofUser();
    Prefs prefs(folders, Prefs::Watch::Nothing);
    prefs.set(Prefs::keys.afterCapture, u"none"_s); // What the card costs, CardBench tells.
    if (const auto written = prefs.flush(); !written)
        return fail(written.error().message);
    std::printf("%d x %d, %d rounds\n", picture.width(), picture.height(), rounds);
    auto done = measureStarts(**desktop, rounds);
    if (done)
        done = measureResident(**desktop, picture, rounds, idleSeconds);
    return done ? 0 : fail(done.error().message);
}
