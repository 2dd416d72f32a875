// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/desktop/VirtualDesktop.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int notUnderstood = 2, noDesktop = 125, notStarted = 127;

/// What was asked for on the command line.
struct CommandLine {
    DesktopOptions desktop;
    QString picture; ///< File to show behind the windows; may be empty.
    bool withClients = false;
    QStringList command; ///< The program and its arguments.
};

int failed(int code, const QString& why)
{
    std::fprintf(stderr, "virtual-desktop: %s\n", qPrintable(why));
    return code;
}

constexpr const char* description
    = R"(Runs a command in a desktop of its own that needs no screen, with an empty home, and
returns its exit code. Everything is gone afterwards. Returns 2 if it does not understand, 125 if
there is no desktop, 127 if the command could not be started.)";

/// Fails with what is not understood.
Result<CommandLine> readCommandLine()
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QString::fromLatin1(description));
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    parser.addOptions({
        {u"size"_s, u"Size of the whole desktop in native pixels."_s, u"WxH"_s},
        {u"monitor"_s, u"A monitor and its pixels per point; the first one is primary."_s,
            u"NAME,X,Y,WxH[*N]"_s},
        {u"scale"_s, u"Pixels per point that Qt programs use."_s, u"N"_s, u"1"_s},
        {u"compositor"_s, u"Run a compositor, picom."_s},
        {u"tray"_s, u"Run a panel with a tray, tint2."_s},
        {u"picture"_s, u"A picture to show behind the windows."_s, u"FILE"_s},
        {u"clients"_s, u"Open a few windows."_s},
    });
    parser.addPositionalArgument(u"command"_s, u"What to run."_s, u"-- COMMAND [ARGUMENTS...]"_s);
    parser.addHelpOption();
    parser.process(*QCoreApplication::instance());

    const auto odd
        = [](const QString& text) { return Error::failed(u"not understood: "_s + text); };
    CommandLine line;
    line.command = parser.positionalArguments();
    if (line.command.isEmpty())
        return Error::failed(u"no command given; see --help"_s);
    int x = 0, y = 0, width = 0, height = 0;
    const QString size = parser.value(u"size"_s);
    if (std::sscanf(qPrintable(size), "%dx%d", &width, &height) == 2)
        line.desktop.size = {width, height};
    if (!size.isEmpty() && line.desktop.size.isEmpty())
        return odd(size);
    const QStringList monitors = parser.values(u"monitor"_s);
    for (const QString& text : monitors) {
        Monitor monitor {text.section(u',', 0, 0), {}};
        if (std::sscanf(qPrintable(text.section(u',', 1)), "%d,%d,%dx%d*%lf", &x, &y, &width,
                &height, &monitor.scale)
            < 4)
            return odd(text);
        monitor.rectangle = {x, y, width, height};
        line.desktop.monitors.push_back(monitor);
    }
    line.desktop.scale = parser.value(u"scale"_s).toDouble();
    if (line.desktop.scale <= 0)
        return odd(parser.value(u"scale"_s));
    if (parser.isSet(u"compositor"_s))
        line.desktop.compositor = Compositor::Picom;
    line.desktop.tray = parser.isSet(u"tray"_s);
    line.picture = parser.value(u"picture"_s);
    line.withClients = parser.isSet(u"clients"_s);
    return line;
}

std::vector<std::unique_ptr<Client>> openClients(const VirtualDesktop& desktop)
{
    std::vector<std::unique_ptr<Client>> clients;
    for (const auto& words : {
             u"desktop-client --title Meadow --geometry 60,80,520x340 --colour #8fce7a"_s,
             u"desktop-client --title Glass --geometry 420,300,480x320 --colour #d070c0 --argb"_s,
             u"desktop-client --title Confetti --geometry 820,120,360x260 --pattern 1"_s,
             u"xterm -geometry 70x18+140+400"_s,
         }) {
        const QStringList arguments = words.split(u' ');
        if (!desktop.find(arguments.front()).startsWith(u'/'))
            continue;
        const auto windows
            = [&] { return desktop.property(desktop.screen().root, "_NET_CLIENT_LIST").size(); };
        const size_t before = windows();
        auto client = desktop.launch(arguments.front(), arguments.sliced(1));
        if (!client)
            continue;
        (void)waitFor([&] { return windows() > before || !(*client)->isRunning(); });
        clients.push_back(*std::move(client));
    }
    return clients;
}

int runCommand(const VirtualDesktop& desktop, const QStringList& command)
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
    process.waitForFinished(-1);
    return process.exitStatus() == QProcess::CrashExit ? 128 + process.exitCode()
                                                       : process.exitCode();
}

} // namespace

int main(int count, char** arguments)
{
    const QCoreApplication application(count, arguments);
    const auto line = readCommandLine();
    if (!line)
        return failed(notUnderstood, line.error().message);
    QImage picture;
    if (!line->picture.isEmpty() && !picture.load(line->picture))
        return failed(noDesktop, u"%1 is not a picture that can be read."_s.arg(line->picture));

    const auto desktop = VirtualDesktop::start(line->desktop);
    if (!desktop)
        return failed(noDesktop, desktop.error().message);
    if (!picture.isNull())
        (*desktop)->setRootPicture(picture);
    std::vector<std::unique_ptr<Client>> clients;
    if (line->withClients)
        clients = openClients(**desktop);
    return runCommand(**desktop, line->command);
}
