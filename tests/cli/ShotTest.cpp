// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/TestFiles.h"
#include "tests/desktop/DesktopTest.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

DesktopOptions sharp()
{
    return {.scale = 2};
}

VirtualDesktop::Finished pixmallow(const VirtualDesktop& desktop, const QStringList& arguments)
{
    const auto finished = desktop.run(u"pixmallow"_s, arguments);
    EXPECT_TRUE(finished) << finished.error().message.toStdString();
    return finished ? *finished : VirtualDesktop::Finished {-1, {}, {}};
}

QImage shot(const VirtualDesktop& desktop, QStringList arguments)
{
    const QString path = desktop.home() + u"/shot.png"_s;
    const auto finished
        = pixmallow(desktop, QStringList {u"shot"_s, u"--output"_s, path} + arguments);
    EXPECT_EQ(finished.exitCode, 0) << finished.errors.toStdString();
    EXPECT_EQ(finished.output, QByteArray());
    return QImage(path);
}

QImage seen(const VirtualDesktop& desktop, QRect rect = {})
{
    return desktop.rootPixels(rect);
}

bool equal(const QImage& a, const QImage& b)
{
    return a.convertToFormat(QImage::Format_RGB32) == b.convertToFormat(QImage::Format_RGB32);
}

int dotsPerInch(const QImage& image)
{
    return int(std::lround(image.dotsPerMeterX() * 0.0254));
}

using ShotTest = DesktopTest<>;
using SharpShotTest = DesktopTest<sharp>;
using TwoMonitorShotTest = DesktopTest<twoMonitors<1, 2>>;

} // namespace

TEST_F(ShotTest, writesWhatIsOnTheScreen)
{
    const auto window = open({u"--pattern"_s, u"1"_s, u"--geometry"_s, u"100,120,700x500"_s});
    const QImage everything = shot(desktop(), {});
    EXPECT_TRUE(equal(everything, seen(desktop())));
    EXPECT_EQ(dotsPerInch(everything), 72);
    EXPECT_TRUE(equal(
        shot(desktop(), {u"--area"_s, u"90,110,301x77"_s}), seen(desktop(), {90, 110, 301, 77})));
    EXPECT_TRUE(equal(shot(desktop(), {u"--screen"_s, u"1"_s}), seen(desktop())));

    // Other tools read the same.
    const QString theirs = desktop().home() + u"/theirs.png"_s;
    const auto scrot = desktop().run(u"scrot"_s, {u"-o"_s, theirs});
    ASSERT_TRUE(scrot) << scrot.error().message.toStdString();
    EXPECT_TRUE(equal(everything, QImage(theirs)));

    const auto piped = pixmallow(desktop(), {u"shot"_s, u"--output"_s, u"-"_s});
    EXPECT_TRUE(equal(QImage::fromData(piped.output, "png"), everything));
}

TEST_F(ShotTest, takesACoveredWindowThatTheListNames)
{
    const auto window = open({u"--pattern"_s, u"2"_s, u"--title"_s, u"Covered"_s, u"--geometry"_s,
        u"150,150,300x200"_s});
    const auto cover = open({u"--geometry"_s, u"100,100,600x450"_s, u"--title"_s, u"Cover"_s});
    const auto list = pixmallow(desktop(), {u"list"_s, u"windows"_s, u"--json"_s});
    const auto windows = QJsonDocument::fromJson(list.output).array();
    ASSERT_EQ(windows.size(), 2);
    EXPECT_EQ(windows[0][u"title"_s], u"Cover"_s);
    EXPECT_EQ(windows[1][u"title"_s], u"Covered"_s);
    EXPECT_EQ(windows[1][u"pid"_s], window.client->pid());
    const auto id = QString::number(windows[1][u"id"_s].toInteger());

    const QImage taken = shot(desktop(), {u"--window"_s, id});
    const QPoint frame(
        windows[1][u"area"_s][u"x"_s].toInt(), windows[1][u"area"_s][u"y"_s].toInt());
    EXPECT_TRUE(equal(taken.copy(QRect(window.geometry.topLeft() - frame, QSize(300, 200))),
        patternOf({300, 200}, 2)));
    EXPECT_GT(shot(desktop(), {u"--window"_s, id, u"--shadow"_s}).width(), taken.width());
}

TEST_F(ShotTest, namesItsFilesAndNeverReplacesOneUnasked)
{
    const QString folder = desktop().home() + u"/fresh"_s;
    ASSERT_TRUE(QDir().mkpath(folder));
    const QString command
        = u"cd '%1' && for i in 1 2 3; do pixmallow shot --area 0,0,9x9 --json; done"_s;
    const auto finished = desktop().run(u"sh"_s, {u"-c"_s, command.arg(folder)});
    ASSERT_TRUE(finished && finished->exitCode == 0);
    const auto names = QDir(folder).entryList(QDir::Files);
    EXPECT_EQ(names.size(), 3);
    for (const auto& name : names)
        EXPECT_TRUE(name.startsWith(u"Screenshot "_s) && name.endsWith(u".png"_s))
            << qPrintable(name);
    const auto first = QJsonDocument::fromJson(finished->output.split('\n').first());
    EXPECT_TRUE(QFile::exists(first[u"path"_s].toString()));
    EXPECT_EQ(first[u"width"_s], 9);
}

TEST_F(ShotTest, leavesTheOldFileWhenItFails)
{
    const QString path = desktop().home() + u"/old.png"_s;
    put(path, "old");
    struct Case {
        QStringList arguments;
        int exitCode;
    };
    for (const auto& [arguments, exitCode] :
        {Case {{u"--area"_s, u"5000,0,10x10"_s}, 2}, Case {{u"--screen"_s, u"7"_s}, 2},
            Case {{u"--window"_s, u"12345"_s}, 2}, Case {{u"--window"_s, u"x"_s}, 64}}) {
        const auto finished
            = pixmallow(desktop(), QStringList {u"shot"_s, u"--output"_s, path} + arguments);
        EXPECT_EQ(finished.exitCode, exitCode);
        EXPECT_EQ(finished.output, QByteArray());
        EXPECT_EQ(finished.errors.count('\n'), 1) << finished.errors.toStdString();
        EXPECT_EQ(contentOf(path), "old");
    }
    // No room: the file size limit stands for the disk's.
    const auto full = desktop().run(u"sh"_s,
        {u"-c"_s, u"trap '' XFSZ; ulimit -f 1; exec pixmallow shot --output '%1'"_s.arg(path)});
    ASSERT_TRUE(full);
    EXPECT_EQ(full->exitCode, 2);
    EXPECT_EQ(contentOf(path), "old");
    EXPECT_EQ(
        QDir(desktop().home()).entryList({u".pixmallow*"_s}, QDir::Files | QDir::Hidden).size(), 0);
}

TEST_F(ShotTest, saysThatThereIsNoDesktop)
{
    const auto finished
        = desktop().run(u"env"_s, {u"-u"_s, u"DISPLAY"_s, u"pixmallow"_s, u"list"_s, u"screens"_s});
    ASSERT_TRUE(finished);
    EXPECT_EQ(finished->exitCode, 2);
    EXPECT_TRUE(finished->errors.contains("DISPLAY")) << finished->errors.toStdString();
}

TEST_F(SharpShotTest, tellsTheResolution)
{
    const QImage image = shot(desktop(), {});
    EXPECT_EQ(dotsPerInch(image), 144);
    EXPECT_TRUE(equal(image, seen(desktop())));
}

TEST_F(TwoMonitorShotTest, takesEachScreenAndAllOfThem)
{
    const auto left = open({u"--pattern"_s, u"1"_s, u"--geometry"_s, u"1000,300,700x300"_s});
    const QImage both = shot(desktop(), {});
    EXPECT_TRUE(equal(both, seen(desktop(), {0, 0, 2304, 818})));
    const QImage second = shot(desktop(), {u"--screen"_s, u"2"_s});
    EXPECT_TRUE(equal(second, seen(desktop(), {1280, 50, 1024, 768})));
    EXPECT_EQ(dotsPerInch(second), 144);
    EXPECT_EQ(dotsPerInch(shot(desktop(), {u"--screen"_s, u"1"_s})), 72);

    const auto list = pixmallow(desktop(), {u"list"_s, u"screens"_s, u"--json"_s});
    const auto screens = QJsonDocument::fromJson(list.output).array();
    ASSERT_EQ(screens.size(), 2);
    EXPECT_EQ(screens[1][u"name"_s], u"R"_s);
    EXPECT_EQ(screens[1][u"scale"_s], 2);
}
