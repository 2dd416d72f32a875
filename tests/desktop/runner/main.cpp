// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/desktop/VirtualDesktop.h"
#include "tests/desktop/runner/CommandLine.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <cstdio>
#include <sys/signalfd.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int noDesktop = 125, notStarted = 127;

int failed(int code, const QString& why)
{
    std::fprintf(stderr, "virtual-desktop: %s\n", qPrintable(why));
    return code;
}

/// Turns the signals that ask a program to end into the number of the one that came.
class Signals final {
public:
    Signals()
    {
        sigset_t set;
        sigemptyset(&set);
        for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGQUIT})
            sigaddset(&set, signal);
        sigprocmask(SIG_BLOCK, &set, nullptr);
        m_descriptor = ::signalfd(-1, &set, SFD_CLOEXEC | SFD_NONBLOCK);
    }

    /// Zero as long as none came.
    int came()
    {
        signalfd_siginfo signal;
        if (::read(m_descriptor, &signal, sizeof signal) == sizeof signal)
            m_came = int(signal.ssi_signo);
        return m_came;
    }

    int descriptor() const { return m_descriptor; }

private:
    int m_descriptor = -1;
    int m_came = 0;
};

std::vector<std::unique_ptr<Client>> openClients(const VirtualDesktop& desktop)
{
    const std::pair<QString, QStringList> programs[] = {
        {u"desktop-client"_s,
            {u"--title"_s, u"Meadow"_s, u"--geometry"_s, u"60,80,520x340"_s, u"--colour"_s,
                u"#8fce7a"_s}},
        {u"desktop-client"_s,
            {u"--title"_s, u"Glass"_s, u"--argb"_s, u"--geometry"_s, u"420,300,480x320"_s,
                u"--colour"_s, u"#d070c0"_s}},
        {u"desktop-client"_s,
            {u"--title"_s, u"Confetti"_s, u"--pattern"_s, u"1"_s, u"--geometry"_s,
                u"820,120,360x260"_s}},
        {u"xterm"_s, {u"-geometry"_s, u"70x18+140+400"_s}},
    };
    std::vector<std::unique_ptr<Client>> clients;
    for (const auto& [program, arguments] : programs) {
        if (!desktop.find(program).startsWith(u'/'))
            continue;
        const auto windows
            = [&] { return desktop.property(desktop.screen().root, "_NET_CLIENT_LIST").size(); };
        const size_t before = windows();
        auto client = desktop.launch(program, arguments);
        if (!client)
            continue;
        (void)waitFor([&] { return windows() > before || !(*client)->isRunning(); });
        clients.push_back(*std::move(client));
    }
    return clients;
}

int runCommand(const VirtualDesktop& desktop, const QStringList& command, Signals& signalled)
{
    QProcess process;
    process.setProcessEnvironment(desktop.environment());
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.setInputChannelMode(QProcess::ForwardedInputChannel);
    // It stays in the terminal's foreground, from which alone it may read.
    tieToParent(process, {.group = Tie::Group::OfParent});
    const QString program = desktop.find(command.front());
    if (const auto started = startProcess(process, program, command.sliced(1)); !started)
        return failed(notStarted, started.error().message);

    QSocketNotifier notifier(signalled.descriptor(), QSocketNotifier::Read);
    QObject::connect(&notifier, &QSocketNotifier::activated, [] { QCoreApplication::exit(); });
    QObject::connect(&process, &QProcess::finished, [] { QCoreApplication::exit(); });
    if (process.state() != QProcess::NotRunning)
        QCoreApplication::exec();
    const int signal = signalled.came();
    endProcess(process);
    if (signal)
        return 128 + signal;
    return process.exitStatus() == QProcess::CrashExit ? 128 + process.exitCode()
                                                       : process.exitCode();
}

} // namespace

int main(int count, char** arguments)
{
    Signals signalled;
    const QCoreApplication application(count, arguments);
    const CommandLine line = readCommandLine();
    QImage picture;
    if (!line.picture.isEmpty() && !picture.load(line.picture))
        return failed(noDesktop, u"%1 is not a picture that can be read."_s.arg(line.picture));

    const auto desktop = VirtualDesktop::start(line.desktop);
    if (!desktop)
        return failed(noDesktop, desktop.error().message);
    if (!picture.isNull())
        (*desktop)->setRootPicture(picture);
    std::vector<std::unique_ptr<Client>> clients;
    if (line.withClients)
        clients = openClients(**desktop);
    if (const int signal = signalled.came())
        return 128 + signal;
    return runCommand(**desktop, line.command, signalled);
}
