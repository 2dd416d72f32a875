// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/desktop/client/Window.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QSocketNotifier>

#include <csignal>
#include <cstdio>
#include <iostream>
#include <sys/prctl.h>

using namespace Qt::StringLiterals;

namespace {

constexpr const char* description = R"(A window for tests.
Lines it writes: mapped 0xID (on screen, painted and managed), geometry X,Y,WxH, focus in,
  focus out, key CHORD, press BUTTON X,Y, keyboard grabbed, keyboard ungrabbed
Lines it reads: raise, grab keyboard, ungrab keyboard)";

template <typename... Numbers>
void scan(const QString& text, const char* format, Numbers*... numbers)
{
    int read = 0; // The format ends in %n, so that nothing may follow.
    const int found = std::sscanf(qPrintable(text), format, numbers..., &read);
    if (found != int(sizeof...(numbers)) || read != text.size()) {
        std::fprintf(stderr, "desktop-client: not understood: %s\n", qPrintable(text));
        std::exit(2);
    }
}

ClientOptions readOptions()
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QString::fromLatin1(description));
    parser.addHelpOption();
    parser.addOptions({
        {u"title"_s, {}, u"TEXT"_s, u"desktop-client"_s},
        {u"class"_s, {}, u"INSTANCE,CLASS"_s, u"desktop-client,DesktopClient"_s},
        {u"geometry"_s, u"Without its frame, in native pixels."_s, u"X,Y,WxH"_s,
            u"100,100,400x300"_s},
        {u"colour"_s, {}, u"#rrggbb"_s, u"#4080c0"_s},
        {u"pattern"_s, u"Every pixel has its own colour."_s, u"SEED"_s},
        {u"type"_s, {}, u"DIALOG|UTILITY|DOCK|..."_s},
        {u"csd"_s, u"Draws its own shadow, so many pixels wide, and wants no frame."_s,
            u"L,R,T,B"_s, u"0,0,0,0"_s},
        {u"argb"_s, u"Is 32 bits deep, alpha from 0 at the left to 255 at the right."_s},
        {u"override-redirect"_s, u"Is not managed by the window manager."_s},
        {u"shaped"_s, u"Has corners that are cut off."_s},
        {u"no-pid"_s, u"Does not tell its process."_s},
        {u"own"_s, u"Is marked as a window of Pixmallow."_s},
        {u"fullscreen"_s, {}},
        {u"minimized"_s, {}},
    });
    parser.process(*QCoreApplication::instance());

    ClientOptions options;
    Look& look = options.look;
    options.title = parser.value(u"title"_s).toUtf8();
    options.type = parser.value(u"type"_s).toUtf8();
    options.instance = parser.value(u"class"_s).section(u',', 0, 0).toUtf8();
    options.className = parser.value(u"class"_s).section(u',', 1).toUtf8();
    int x = 0, y = 0, width = 0, height = 0;
    scan(parser.value(u"geometry"_s), "%d,%d,%dx%d%n", &x, &y, &width, &height);
    options.geometry = {x, y, width, height};
    scan(parser.value(u"colour"_s), "#%6x%n", &look.colour);
    scan(parser.value(u"csd"_s), "%d,%d,%d,%d%n", &look.left, &look.right, &look.top, &look.bottom);
    if (parser.isSet(u"pattern"_s))
        scan(parser.value(u"pattern"_s), "%u%n", &look.seed.emplace());
    look.translucent = parser.isSet(u"argb"_s);
    options.overrideRedirect = parser.isSet(u"override-redirect"_s);
    options.shaped = parser.isSet(u"shaped"_s);
    options.withPid = !parser.isSet(u"no-pid"_s);
    options.own = parser.isSet(u"own"_s);
    options.fullscreen = parser.isSet(u"fullscreen"_s);
    options.minimized = parser.isSet(u"minimized"_s);
    return options;
}

} // namespace

int main(int count, char** arguments)
{
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    std::ios::sync_with_stdio(false); // So that it is known how much has been read.
    const QCoreApplication application(count, arguments);
    Window window(readOptions());
    if (const auto opened = window.open(); !opened) {
        std::fprintf(stderr, "desktop-client: %s\n", qPrintable(opened.error().message));
        return 1;
    }
    QSocketNotifier server(xcb_get_file_descriptor(window.connection()), QSocketNotifier::Read);
    QSocketNotifier commands(0, QSocketNotifier::Read);
    const auto handleEvents = [&] {
        if (!window.handleEvents())
            QCoreApplication::quit();
    };
    QObject::connect(&server, &QSocketNotifier::activated, handleEvents);
    QObject::connect(&commands, &QSocketNotifier::activated, [&] {
        std::string line;
        do {
            if (std::getline(std::cin, line))
                window.obey(QByteArray::fromStdString(line));
            else
                commands.setEnabled(false); // Nobody commands any more.
        } while (std::cin.rdbuf()->in_avail() > 0);
        handleEvents(); // Those that came with the replies.
    });
    handleEvents();
    return QCoreApplication::exec();
}
