// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/resident/ResidentDesktop.h"

#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace {

DesktopOptions twoMonitors()
{
    DesktopOptions options;
    options.size = {2304, 900};
    options.monitors
        = {{u"L"_s, QRect(0, 0, 1280, 800), 2}, {u"R"_s, QRect(1280, 50, 1024, 768), 1}};
    options.tray = true;
    return options;
}

using ResidentTest = ResidentDesktop<plainDesktop>;
using TwoMonitorResidentTest = ResidentDesktop<twoMonitors>;

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// A terminal with text on the screen, and the whole screen selected for a text capture.
class TextResidentTest : public ResidentDesktop<plainDesktop> {
protected:
    void SetUp() override
    {
        ResidentDesktop::SetUp();
        if (!desktop().find(u"xterm"_s).startsWith(u'/'))
            GTEST_SKIP() << "xterm is not installed; this test needs text on the screen";
        if (!QFile::exists(QCoreApplication::applicationDirPath() + u"/libpixmallow-text.so"_s))
            GTEST_SKIP() << "This was built without text recognition.";
        resident = launchResident();
        ASSERT_TRUE(resident);
    }

    void showText(const QString& command, const QString& size)
    {
        const QString written = desktop().home() + u"/written"_s;
        QFile::remove(written);
        // The terminal says where its cursor is once it has drawn all before that question.
        const QString answered = u"; printf '\\033[6n'; IFS= read -rsd R; >"_s + written;
        auto started = desktop().launch(u"xterm"_s,
            {u"-fa"_s, u"DejaVu Sans Mono"_s, u"-fs"_s, size, u"-geometry"_s, u"120x40+150+60"_s,
                u"-e"_s, u"bash"_s, u"-c"_s, command + answered + u"; sleep 100"_s});
        ASSERT_TRUE(started);
        terminal = *std::move(started);
        ASSERT_TRUE(waitFor([&] { return QFile::exists(written); }));
        settledPixels();
    }

    std::unique_ptr<Client> captureText()
    {
        // Nothing but the selection darkens this corner; the terminal may still write.
        const QRect corner(10, 10, 4, 4);
        const auto window = open({u"--override-redirect"_s, u"--geometry"_s, u"0,0,40x40"_s});
        const QImage before = desktop().rootPixels(corner);
        auto asking
            = desktop().launch(u"pixmallow"_s, {u"capture"_s, u"text"_s, u"--wait"_s, u"--json"_s});
        EXPECT_TRUE(asking);
        EXPECT_TRUE(waitFor([&] { return !equal(desktop().rootPixels(corner), before); }));
        EXPECT_TRUE(waitFor([&] { // It is seen a moment before it has the keyboard.
            desktop().key("space");
            return waitFor([&] { return equal(desktop().rootPixels(corner), before); },
                std::chrono::milliseconds(500));
        }));
        return *std::move(asking);
    }

    std::unique_ptr<Client> resident, terminal;
};

} // namespace

TEST_F(ResidentTest, startsByItselfAndCapturesTheScreenToFileAndClipboard)
{
    const auto window = open({u"--pattern"_s, u"1"_s, u"--geometry"_s, u"200,150,600x400"_s});
    const auto report = capture(u"screen"_s);
    const QString path = report[u"path"_s].toString();
    EXPECT_THAT(QFileInfo(path).fileName().toStdString(),
        testing::MatchesRegex(
            R"(Screenshot [0-9-]{10} at [0-9]{2}\.[0-9]{2}\.[0-9]{2}( \([0-9]+\))?\.png)"));
    EXPECT_EQ(report[u"app"_s], u"Screen"_s);
    EXPECT_TRUE(equal(QImage(path), desktop().rootPixels()));
    EXPECT_EQ(clipboard(u"image/png"_s), contentOf(path)) << "not the exact bytes";
    EXPECT_TRUE(equal(QImage::fromData(clipboard(u"image/bmp"_s), "bmp"), desktop().rootPixels()));
}

TEST_F(ResidentTest, leavesItsCopyToTheClipboardManagerWhenItEnds)
{
    auto manager = desktop().launch(u"clipboard-manager"_s, {});
    ASSERT_TRUE(manager);
    ASSERT_FALSE((*manager)->waitForLine("ready").isNull());
    const auto path = capture(u"screen"_s)[u"path"_s].toString();
    pixmallow({u"quit"_s});
    EXPECT_FALSE((*manager)->waitForLine("saved").isNull());
    EXPECT_EQ(clipboard(u"image/png"_s), contentOf(path));
}

TEST_F(ResidentTest, capturesWhenItsShortcutIsPressed)
{
    capture(u"screen"_s); // Starts the resident program.
    const auto before = saved().size();
    const QString index = desktop().home() + u"/.local/share/Pixmallow/History/index.json"_s;
    // A capture has ended when it is in the history; a shortcut pressed earlier is dropped.
    const auto hasEnded = [&](qsizetype captures) {
        return waitFor([&] {
            return saved().size() == before + captures
                && QJsonDocument::fromJson(contentOf(index)).array().size() == saved().size();
        });
    };
    const auto window = open(); // It has the keyboard.
    desktop().key("ctrl+shift+3");
    EXPECT_TRUE(hasEnded(1));
    desktop().key("ctrl+shift+2");
    EXPECT_TRUE(hasEnded(2));

    const QImage bright = desktop().rootPixels();
    desktop().key("ctrl+shift+1");
    ASSERT_TRUE(waitFor([&] { return !equal(desktop().rootPixels(), bright); }));
    desktop().key("ctrl+shift+3"); // Dropped, and the selection stays.
    EXPECT_TRUE(waitFor([&] { // It is seen a moment before it has the keyboard.
        desktop().key("space");
        return waitFor(
            [&] { return saved().size() == before + 3; }, std::chrono::milliseconds(500));
    }));
    EXPECT_TRUE(hasEnded(3));
}

TEST_F(ResidentTest, capturesAnOpenMenuOfAnotherProgramWhenPreferred)
{
    const QString preferences = desktop().home() + u"/.config/Pixmallow/preferences.json"_s;
    capture(u"screen"_s); // Starts the resident program.
    const auto menu = open(
        {u"--override-redirect"_s, u"--pattern"_s, u"8"_s, u"--geometry"_s, u"500,300,200x240"_s});
    menu.client->send("grab keyboard");
    ASSERT_FALSE(menu.client->waitForLine("keyboard grabbed").isNull());
    const QImage open = desktop().rootPixels();
    const auto before = saved().size();

    QFile file(preferences);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(R"({"captureOpenMenus": true})");
    file.close();
    // The program takes a moment to see the preference; until then it does not hear the keys.
    ASSERT_TRUE(waitFor([&] {
        desktop().key("ctrl+shift+1");
        return waitFor(
            [&] { return !equal(desktop().rootPixels(), open); }, std::chrono::milliseconds(700));
    }));
    menu.client->send("ungrab keyboard"); // As a menu does that a click outside closes.
    ASSERT_TRUE(waitFor([&] {
        desktop().key("space");
        return waitFor(
            [&] { return saved().size() == before + 1; }, std::chrono::milliseconds(300));
    }));
    const QDir folder(desktop().home() + u"/Pictures/Pixmallow"_s);
    const auto newest = folder.entryInfoList(QDir::Files, QDir::Time).first();
    EXPECT_TRUE(equal(QImage(newest.filePath()), open));
    QFile::remove(preferences);
}

TEST_F(ResidentTest, capturesTheWindowLastWorkedIn)
{
    const auto first = open({u"--pattern"_s, u"3"_s, u"--class"_s, u"painter,Painter"_s,
        u"--geometry"_s, u"100,100,400x300"_s});
    pixmallow({u"capture"_s, u"screen"_s, u"--wait"_s}); // Starts the resident program.
    const auto second = open({u"--pattern"_s, u"4"_s, u"--class"_s, u"writer,Writer"_s,
        u"--geometry"_s, u"300,200,400x300"_s});
    // Which window is active reaches the program a moment later.
    const auto takes = [&](const QString& app) {
        return waitFor([&] {
            const auto taken = pixmallow({u"capture"_s, u"window"_s, u"--wait"_s, u"--json"_s});
            return QJsonDocument::fromJson(taken.output)[u"app"_s] == app;
        });
    };
    EXPECT_TRUE(takes(u"Writer"_s));
    desktop().clickAt({110, 110});
    EXPECT_TRUE(takes(u"Painter"_s));
}

TEST_F(ResidentTest, refusesWhatThereIsNotAndWhatIsTooMuch)
{
    EXPECT_EQ(pixmallow({u"capture"_s, u"door"_s}).exitCode, 64);
    EXPECT_EQ(pixmallow({u"capture"_s, u"screen"_s}).exitCode, 0) << "accepted";
    EXPECT_EQ(pixmallow({u"capture"_s, u"screen"_s, u"--wait"_s}).exitCode, 3) << "busy";
    EXPECT_TRUE(waitFor([&] { return pixmallow({u"capture"_s, u"screen"_s}).exitCode == 0; }));
}

TEST_F(TextResidentTest, copiesTheTextOfTheSelection)
{
    showText(u"printf 'The quick brown fox\\njumps over the lazy dog\\n'"_s, u"14"_s);
    const auto asking = captureText();
    ASSERT_TRUE(asking->waitForEnd());
    const auto report = QJsonDocument::fromJson(asking->output()).object();
    EXPECT_EQ(asking->exitCode(), 0) << asking->errors().toStdString();
    const QString text = report[u"text"_s].toString();
    EXPECT_TRUE(text.contains(u"The quick brown fox\njumps over the lazy dog"_s))
        << text.toStdString();
    EXPECT_EQ(clipboard(u"UTF8_STRING"_s), text.toUtf8());
    EXPECT_TRUE(saved().isEmpty());
    const QString stats = desktop().home() + u"/.local/share/Pixmallow/stats.json"_s;
    EXPECT_TRUE(
        waitFor([&] { return QJsonDocument::fromJson(contentOf(stats))[u"texts"_s] == 1; }));
}

TEST_F(TextResidentTest, endsAtOnceWhileItReads)
{
    showText(u"yes 'some text that takes its time to read' | head -300 | fmt -w 150"_s, u"7"_s);
    const auto asking = captureText();
    const QString maps = u"/proc/%1/maps"_s.arg(resident->pid());
    ASSERT_TRUE(waitFor([&] { return contentOf(maps).contains("libtesseract"); }));
    QElapsedTimer timer;
    timer.start();
    pixmallow({u"quit"_s});
    EXPECT_TRUE(resident->waitForEnd());
    EXPECT_LT(timer.elapsed(), 2000);
    EXPECT_EQ(resident->exitCode(), 0);
    ASSERT_TRUE(asking->waitForEnd());
    EXPECT_EQ(asking->exitCode(), 1);
}

TEST_F(ResidentTest, runsOnceHoweverOftenItIsStarted)
{
    std::vector<std::unique_ptr<Client>> started;
    for (int i = 0; i < 4; ++i) {
        auto client = desktop().launch(u"pixmallow-desktop"_s, {u"--background"_s});
        ASSERT_TRUE(client);
        started.push_back(*std::move(client));
    }
    const auto running = [&] {
        return std::count_if(
            started.begin(), started.end(), [](auto& each) { return each->isRunning(); });
    };
    EXPECT_TRUE(waitFor([&] { return running() == 1; }));
    EXPECT_EQ(capture(u"screen"_s)[u"outcome"_s], u"done"_s);

    auto replacement = desktop().launch(u"pixmallow-desktop"_s, {u"--replace"_s});
    ASSERT_TRUE(replacement);
    EXPECT_TRUE(waitFor([&] { return running() == 0; }));
    EXPECT_TRUE(waitUntilResidentListens());
    EXPECT_EQ(capture(u"screen"_s)[u"outcome"_s], u"done"_s);
    EXPECT_TRUE((*replacement)->isRunning());
    for (auto& each : started)
        EXPECT_EQ(each->exitCode(), 0);
}

TEST_F(ResidentTest, isReplacedByTheOneThatIsStartedToTakeItsPlace)
{
    const auto before = saved();
    capture(u"screen"_s);
    auto old = desktop().launch(u"pixmallow-desktop"_s, {u"--background"_s});
    ASSERT_TRUE(old);
    ASSERT_TRUE((*old)->waitForEnd()) << "the one that the capture started is there";
    EXPECT_EQ(pixmallow({u"capture"_s, u"screen"_s}).exitCode, 0) << "accepted, and under way";
    std::vector<std::unique_ptr<Client>> replacements;
    for (int i = 0; i < 2; ++i) { // As somebody does who clicks twice.
        auto client = desktop().launch(u"pixmallow-desktop"_s, {u"--replace"_s});
        ASSERT_TRUE(client);
        replacements.push_back(*std::move(client));
    }
    const auto running = [&] {
        return std::ranges::count_if(replacements, [](auto& each) { return each->isRunning(); });
    };
    ASSERT_TRUE(waitFor([&] { return running() == 1; }));
    ASSERT_TRUE(waitUntilResidentListens());
    EXPECT_EQ(saved().size(), before.size() + 2) << "the old one finished what it was doing";
    for (const auto& each : replacements)
        EXPECT_TRUE(each->isRunning() || each->exitCode() == 0) << each->errors().toStdString();
    EXPECT_EQ(capture(u"screen"_s)[u"outcome"_s], u"done"_s);
    desktop().key("Escape"); // The one that came too late may have asked for the menu.
    const auto window = open();
    desktop().key("ctrl+shift+3"); // The shortcuts are the new one's now.
    EXPECT_TRUE(waitFor([&] { return saved().size() == before.size() + 4; }));
    EXPECT_EQ(running(), 1);
}

TEST_F(ResidentTest, finishesTheCaptureThatRunsWhenItIsTerminated)
{
    for (const int signal : {SIGTERM, SIGINT, SIGKILL}) {
        const auto before = saved();
        const auto resident = launchResident();
        ASSERT_TRUE(resident);
        // Accepted, the capture then waits 0.12 s before it reads the screen.
        EXPECT_EQ(pixmallow({u"capture"_s, u"screen"_s}).exitCode, 0);
        ::kill(pid_t(resident->pid()), signal);
        ASSERT_TRUE(resident->waitForEnd());
        const bool finished = signal != SIGKILL;
        EXPECT_EQ(saved().size(), before.size() + (finished ? 1 : 0)) << signal;
        for (const auto& name : saved(QDir::Files | QDir::Hidden))
            EXPECT_FALSE(QImage(desktop().home() + u"/Pictures/Pixmallow/"_s + name).isNull())
                << "half a file: " << name.toStdString();
    }
    EXPECT_EQ(capture(u"screen"_s)[u"outcome"_s], u"done"_s) << "after a stale socket";
}

TEST_F(TwoMonitorResidentTest, capturesTheScreenUnderThePointerAtItsScale)
{
    desktop().moveTo({1500, 300});
    const auto right = capture(u"screen"_s);
    EXPECT_EQ(right[u"scale"_s], 1);
    EXPECT_TRUE(
        equal(QImage(right[u"path"_s].toString()), desktop().rootPixels({1280, 50, 1024, 768})));
    desktop().moveTo({5, 5});
    const auto left = capture(u"screen"_s);
    EXPECT_EQ(left[u"scale"_s], 2);
    const QImage image(left[u"path"_s].toString());
    EXPECT_TRUE(equal(image, desktop().rootPixels({0, 0, 1280, 800})));
    EXPECT_EQ(qRound(image.dotsPerMeterX() * 0.0254), 144);
}

TEST_F(TwoMonitorResidentTest, capturesTheDraggedRegionToTheDevicePixel)
{
    struct Case {
        QPoint from, to;
    };
    const QRect left(0, 0, 1280, 700), right(1280, 50, 1024, 700);
    const auto window = open({u"--pattern"_s, u"6"_s, u"--geometry"_s, u"100,80,700x500"_s});
    const auto other = open({u"--pattern"_s, u"7"_s, u"--geometry"_s, u"1400,120,700x500"_s});
    for (const auto& [from, to] :
        {Case {{203, 151}, {478, 302}}, Case {{1900, 500}, {1501, 203}}}) {
        const QRect region = QRect(from, QSize(1, 1)) | QRect(to, QSize(1, 1));
        const QRect taken(region.topLeft(), region.size() - QSize(1, 1));
        const QImage before = desktop().rootPixels(taken);
        const QImage leftBefore = desktop().rootPixels(left);
        const QImage rightBefore = desktop().rootPixels(right);
        auto asking = desktop().launch(
            u"pixmallow"_s, {u"capture"_s, u"region"_s, u"--wait"_s, u"--json"_s});
        ASSERT_TRUE(asking);
        ASSERT_TRUE(waitFor([&] {
            return !equal(desktop().rootPixels(left), leftBefore)
                && !equal(desktop().rootPixels(right), rightBefore);
        }));
        desktop().drag(from, to);
        ASSERT_TRUE((*asking)->waitForEnd());
        const auto report = QJsonDocument::fromJson((*asking)->output()).object();
        EXPECT_EQ(report[u"outcome"_s], u"done"_s) << (*asking)->errors().toStdString();
        EXPECT_EQ(report[u"scale"_s], from.x() < 1280 ? 2 : 1);
        EXPECT_TRUE(equal(QImage(report[u"path"_s].toString()), before));
    }
}

TEST_F(TwoMonitorResidentTest, endsSilentlyWhenTheSelectionIsCancelledOrTheProgramEnds)
{
    const auto before = desktop().rootPixels({0, 0, 1280, 700});
    const auto ask = [&] {
        auto asking = desktop().launch(u"pixmallow"_s, {u"capture"_s, u"region"_s, u"--wait"_s});
        EXPECT_TRUE(waitFor([&] {
            return !equal(desktop().rootPixels({0, 0, 1280, 700}), before);
        }));
        return *std::move(asking);
    };
    const auto escaped = ask();
    EXPECT_EQ(pixmallow({u"capture"_s, u"region"_s, u"--wait"_s}).exitCode, 3);
    desktop().key("Escape");
    ASSERT_TRUE(escaped->waitForEnd());
    EXPECT_EQ(escaped->exitCode(), 1);
    EXPECT_TRUE(waitFor([&] { return equal(desktop().rootPixels({0, 0, 1280, 700}), before); }));

    const auto interrupted = ask();
    pixmallow({u"quit"_s});
    ASSERT_TRUE(interrupted->waitForEnd());
    EXPECT_EQ(interrupted->exitCode(), 1);
}

TEST_F(TwoMonitorResidentTest, leavesItsOwnMenuOutOfCaptures)
{
    capture(u"screen"_s);
    desktop().moveTo({600, 300});
    const QImage before = desktop().rootPixels({0, 0, 1280, 700});
    pixmallow({}); // A second start shows the menu.
    EXPECT_TRUE(waitFor([&] { return !equal(desktop().rootPixels({0, 0, 1280, 700}), before); }));
    const auto report = capture(u"screen"_s);
    EXPECT_TRUE(equal(QImage(report[u"path"_s].toString()).copy(0, 0, 1280, 700), before));
    desktop().key("Escape");
}
