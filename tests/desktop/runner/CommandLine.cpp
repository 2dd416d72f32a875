// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/desktop/runner/CommandLine.h"

#include <QCommandLineParser>
#include <QRegularExpression>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void refuse(const QString& what)
{
    std::fprintf(stderr, "virtual-desktop: %s\n", qPrintable(what));
    std::exit(2);
}

/// The whole numbers in a text that matches the pattern as a whole.
std::vector<int> numbersIn(const QString& text, const QString& pattern)
{
    const auto match = QRegularExpression(QRegularExpression::anchoredPattern(pattern)).match(text);
    if (!match.hasMatch())
        refuse(u"not understood: "_s + text);
    std::vector<int> numbers;
    for (int index = 1; index <= match.lastCapturedIndex(); ++index)
        numbers.push_back(match.captured(index).toInt());
    return numbers;
}

double scaleFrom(const QString& text)
{
    bool understood = false;
    const double scale = text.toDouble(&understood);
    if (!understood || scale < 0.5 || scale > 8)
        refuse(u"a scale is a number from 0.5 to 8, not "_s + text);
    return scale;
}

Monitor monitorFrom(const QString& text)
{
    const auto numbers
        = numbersIn(text.section(u',', 1), u"(\\d+),(\\d+),([1-9]\\d*)x([1-9]\\d*)"_s);
    return {text.section(u',', 0, 0), QRect(numbers[0], numbers[1], numbers[2], numbers[3])};
}

void setScales(std::vector<Monitor>& monitors, const QString& text)
{
    const QStringList items = text.split(u';', Qt::SkipEmptyParts);
    for (const QString& item : items) {
        const auto monitor = std::find_if(monitors.begin(), monitors.end(),
            [&](const Monitor& each) { return each.name == item.section(u'=', 0, 0); });
        if (monitor == monitors.end())
            refuse(u"there is no monitor for the scale "_s + item);
        monitor->scale = scaleFrom(item.section(u'=', 1));
    }
}

} // namespace

CommandLine readCommandLine()
{
    const QCommandLineOption size(
        u"size"_s, u"Size of the whole desktop in native pixels."_s, u"WxH"_s);
    const QCommandLineOption monitor(u"monitor"_s,
        u"A monitor; may be given again. The first is the primary one."_s, u"NAME,X,Y,WxH"_s);
    const QCommandLineOption scale(
        u"scale"_s, u"Pixels per point that Qt programs use."_s, u"N"_s, u"1"_s);
    const QCommandLineOption scales(
        u"scales"_s, u"Pixels per point of the monitors."_s, u"NAME=N;..."_s);
    const QCommandLineOption compositor(u"compositor"_s, u"Run a compositor, picom."_s);
    const QCommandLineOption tray(u"tray"_s, u"Run a panel with a tray, tint2."_s);
    const QCommandLineOption picture(
        u"picture"_s, u"A picture to show behind the windows."_s, u"FILE"_s);
    const QCommandLineOption clients(u"clients"_s, u"Open a few windows."_s);

    QCommandLineParser parser;
    parser.setApplicationDescription(
        u"Runs a command in a desktop of its own that needs no screen, with an empty home, and "
        "returns its exit code. Everything is gone afterwards. Returns 2 if it does not "
        "understand, "
        "125 if there is no desktop, 127 if the command could not be started."_s);
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    parser.addOptions({size, monitor, scale, scales, compositor, tray, picture, clients});
    parser.addPositionalArgument(u"command"_s, u"What to run."_s, u"-- COMMAND [ARGUMENTS...]"_s);
    const auto help = parser.addHelpOption();
    if (!parser.parse(QCoreApplication::arguments()))
        refuse(parser.errorText());
    if (parser.isSet(help))
        parser.showHelp();

    CommandLine line;
    if (parser.isSet(size)) {
        const auto numbers = numbersIn(parser.value(size), u"([1-9]\\d*)x([1-9]\\d*)"_s);
        line.desktop.size = QSize(numbers[0], numbers[1]);
    }
    for (const QString& each : parser.values(monitor))
        line.desktop.monitors.push_back(monitorFrom(each));
    setScales(line.desktop.monitors, parser.value(scales));
    line.desktop.scale = scaleFrom(parser.value(scale));
    if (parser.isSet(compositor))
        line.desktop.compositor = Compositor::Picom;
    line.desktop.tray = parser.isSet(tray);
    line.picture = parser.value(picture);
    line.withClients = parser.isSet(clients);
    line.command = parser.positionalArguments();
    if (line.command.isEmpty())
        refuse(u"no command given; see --help"_s);
    return line;
}
