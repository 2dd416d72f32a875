// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/desktop/DesktopTest.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

/// Processes that run in the desktop with this home.
std::vector<pid_t> processesIn(const QString& home)
{
    const QByteArray mark = "HOME=" + home.toUtf8();
    std::vector<pid_t> found;
    for (const QString& process : QDir(u"/proc"_s).entryList(QDir::Dirs)) {
        QFile environment(u"/proc/%1/environ"_s.arg(process));
        if (process.toInt() > 0 && environment.open(QFile::ReadOnly)
            && environment.readAll().split('\0').contains(mark))
            found.push_back(process.toInt());
    }
    return found;
}

/// Whether no server has left its socket behind; that of a running one is fine.
bool isTidy(const QString& display)
{
    const QString socket = u"/tmp/.X11-unix/X"_s + display.sliced(1);
    QFile listening(u"/proc/net/unix"_s);
    return !QFile::exists(socket)
        || (listening.open(QFile::ReadOnly)
            && listening.readAll().contains(socket.toUtf8() + '\n'));
}

} // namespace

using VirtualDesktopTest = DesktopTest<>;

TEST_F(VirtualDesktopTest, keysReachTheFocusedClientAndAClickRaises)
{
    const ClientWindow lower = open({u"--pattern"_s, u"7"_s});
    const ClientWindow upper
        = open({u"--geometry"_s, u"300,200,300x300"_s, u"--pattern"_s, u"8"_s});
    ASSERT_TRUE(lower.client && upper.client);
    EXPECT_FALSE(upper.client->waitForLine("focus in").isNull());
    desktop().typeKeys("aZ?\n");
    for (const char* line : {"key a", "key shift+z", "key shift+slash", "key Return"})
        EXPECT_EQ(upper.client->waitForLine(line).toStdString(), line);

    const QImage expected
        = pictureOf({.seed = 7}, lower.geometry.size()).convertToFormat(QImage::Format_RGB32);
    EXPECT_NE(desktop().rootPixels(lower.geometry), expected);
    desktop().clickAt(lower.geometry.topLeft() + QPoint(20, 30), 3);
    EXPECT_FALSE(lower.client->waitForLine("press 3 20,30").isNull());
    EXPECT_TRUE(waitFor([&] { return desktop().rootPixels(lower.geometry) == expected; }));
    EXPECT_FALSE(lower.client->waitForLine("focus in").isNull());
    desktop().key("ctrl+shift+1");
    EXPECT_FALSE(lower.client->waitForLine("key ctrl+shift+1").isNull());
    EXPECT_THROW(desktop().key("ctrl+nonsense"), std::invalid_argument);
}

using DesktopLifeTest = ServerTest;

TEST_F(DesktopLifeTest, desktopsRunBesideEachOtherAndLeaveNothing)
{
    auto one = VirtualDesktop::start();
    ASSERT_TRUE(one) << one.error().message.toStdString();
    auto other = VirtualDesktop::start({.windowManager = false});
    ASSERT_TRUE(other) << other.error().message.toStdString();
    EXPECT_NE((*one)->display(), (*other)->display());
    const ClientWindow window = openWindow(**other);
    EXPECT_EQ((*other)->rootPixels(window.geometry),
        pictureOf({}, window.geometry.size()).convertToFormat(QImage::Format_RGB32));

    const QString home = (*one)->home(), display = (*one)->display();
    const auto ran = (*one)->run(u"sh"_s, {u"-c"_s, u"(sleep 600 > /dev/null 2>&1 &); exit 7"_s});
    ASSERT_TRUE(ran) << ran.error().message.toStdString();
    EXPECT_EQ(ran->exitCode, 7);
    EXPECT_EQ(processesIn(home).size(), 4u); // Server, bus, window manager, and what was left.
    (*one)->stop();
    EXPECT_TRUE(processesIn(home).empty());
    EXPECT_FALSE(QFile::exists(home));
    EXPECT_TRUE(isTidy(display));
    EXPECT_FALSE((*other)->rootPixels().isNull());
}

TEST_F(DesktopLifeTest, saysWhatIsMissingAndWhatAProgramSaidThatFailed)
{
    QTemporaryDir folder;
    const QByteArray path = qgetenv("PATH");
    const auto startWithPath = [&](const QByteArray& changed) {
        qputenv("PATH", changed);
        const auto desktop = VirtualDesktop::start();
        qputenv("PATH", path);
        return desktop ? QString() : desktop.error().message;
    };
    EXPECT_TRUE(startWithPath("/nowhere").contains(u"Xvfb, dbus-daemon, openbox"_s));

    QFile failing(folder.filePath(u"openbox"_s));
    ASSERT_TRUE(failing.open(QFile::WriteOnly));
    failing.write("#!/bin/sh\necho no theme today >&2\nexit 1\n");
    failing.close();
    failing.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    EXPECT_EQ(startWithPath(folder.path().toUtf8() + ':' + path).toStdString(),
        "openbox ended at once: no theme today");
    EXPECT_FALSE(VirtualDesktop::start({.size = QSize(100'000, 800)}));
}

TEST_F(DesktopLifeTest, nothingOutlivesTheProgramThatStartedIt)
{
    const QString runner = QCoreApplication::applicationDirPath() + u"/virtual-desktop"_s;
    const QString script = u"read word; echo \"$word|$DISPLAY|$HOME\"; (sleep 600 &); sleep 600"_s;
    enum class End { Terminated, Killed, KilledWithAllItStarted };
    for (const End end : {End::Terminated, End::Killed, End::KilledWithAllItStarted}) {
        Client desktop(QProcessEnvironment::systemEnvironment());
        ASSERT_TRUE(desktop.start(runner, {u"--clients"_s, u"--"_s, u"sh"_s, u"-c"_s, script}));
        desktop.send("started");
        const QByteArrayList said = desktop.waitForLine("started|").split('|');
        ASSERT_EQ(said.size(), 3) << desktop.errors().toStdString();
        const QString display = QString::fromUtf8(said[1]), home = QString::fromUtf8(said[2]);
        std::vector<pid_t> processes;
        EXPECT_TRUE(waitFor([&] { // Three services, three windows, three of the script.
            processes = processesIn(home);
            return processes.size() >= 9;
        }));

        if (end == End::Terminated) {
            ::kill(pid_t(desktop.pid()), SIGTERM);
            EXPECT_TRUE(desktop.waitForEnd());
            EXPECT_EQ(desktop.exitCode(), 128 + SIGTERM);
        } else {
            ::kill(pid_t(desktop.pid()), SIGSTOP);
            if (end == End::KilledWithAllItStarted)
                for (const pid_t process : processes)
                    ::kill(process, SIGKILL);
            ::kill(pid_t(desktop.pid()), SIGKILL);
        }
        EXPECT_TRUE(waitFor([&] { return processesIn(home).empty(); }));
        EXPECT_TRUE(waitFor([&] { return isTidy(display); }));
        EXPECT_TRUE(waitFor([&] { return !QFile::exists(home); }));
    }
}
