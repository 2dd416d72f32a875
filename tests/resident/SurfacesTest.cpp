// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/desktop/DesktopTest.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

DesktopOptions composited()
{
    DesktopOptions options;
    options.compositor = Compositor::Picom;
    return options;
}

DesktopOptions twoMonitors()
{
    DesktopOptions options;
    options.size = {2304, 900};
    options.monitors
        = {{u"L"_s, QRect(0, 0, 1280, 800), 2}, {u"R"_s, QRect(1280, 50, 1024, 768), 1}};
    return options;
}

/// What floats over the windows of others while the real program runs.
template <DesktopOptions (*options)()>
class SurfacesDesktop : public DesktopTest<options> {
protected:
    using Base = DesktopTest<options>;
    using Base::settledPixels;

    void SetUp() override
    {
        Base::SetUp();
        if (this->IsSkipped())
            return;
        const QImage picture
            = patternOf(Base::desktop().rootPixels().size()).convertToFormat(QImage::Format_RGB32);
        Base::desktop().setRootPicture(picture);
        ASSERT_TRUE(waitFor([&] { return Base::desktop().rootPixels() == picture; }));
        Base::desktop().moveTo({5, 5});
        prefer(R"({"delaySeconds":2,"afterCapture":"none","captureAnimation":"none"})");
    }

    void TearDown() override
    {
        if (!this->IsSkipped())
            run({u"quit"_s});
    }

    static void prefer(const QByteArray& preferences)
    {
        const QString folder = Base::desktop().home() + u"/.config/Pixmallow"_s;
        QDir().mkpath(folder);
        QFile file(folder + u"/preferences.json"_s);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(preferences);
    }

    /// The front program, to its end.
    static VirtualDesktop::Finished run(const QStringList& arguments)
    {
        const auto finished = Base::desktop().run(u"pixmallow"_s, arguments);
        EXPECT_TRUE(finished) << finished.error().message.toStdString();
        return finished ? *finished : VirtualDesktop::Finished {-1, {}, {}};
    }

    /// A capture that somebody waits for.
    static std::unique_ptr<Client> begin(const QString& kind)
    {
        auto client = Base::desktop().launch(
            u"pixmallow"_s, {u"capture"_s, kind, u"--wait"_s, u"--json"_s});
        EXPECT_TRUE(client);
        return *std::move(client);
    }

    /// What a capture that was begun has taken.
    static QImage taken(Client& capture)
    {
        EXPECT_TRUE(capture.waitForEnd());
        EXPECT_EQ(capture.exitCode(), 0) << capture.errors().toStdString();
        const auto report = QJsonDocument::fromJson(capture.output()).object();
        return QImage(report[u"path"_s].toString()).convertToFormat(QImage::Format_RGB32);
    }

    /// Has the program say that there is no window to capture. A window as thin as those of these
    /// tests is none.
    static void toast() { EXPECT_EQ(run({u"capture"_s, u"window"_s, u"--wait"_s}).exitCode, 2); }

    static QImage see(QRect rect = {}) { return Base::desktop().rootPixels(rect); }
    static bool changes(QRect rect, const QImage& before)
    {
        return waitFor([&] { return see(rect) != before.copy(rect); });
    }
    static bool returns(const QImage& before)
    {
        return waitFor([&] { return see() == before; });
    }

    void leavesNoTraceInCaptures();
};

using SurfacesTest = SurfacesDesktop<plainDesktop>;
using CompositedSurfacesTest = SurfacesDesktop<composited>;
using TwoMonitorSurfacesTest = SurfacesDesktop<twoMonitors>;

constexpr QRect countdownCard(565, 325, 150, 150);
constexpr QRect toastCard(944, 704, 320, 80);

template <DesktopOptions (*options)()>
void SurfacesDesktop<options>::leavesNoTraceInCaptures()
{
    const QImage bare = see();
    const auto beside = Base::open({u"--pattern"_s, u"6"_s, u"--geometry"_s, u"100,100,30x200"_s});
    ASSERT_TRUE(changes(beside.geometry, bare));
    const QImage before = settledPixels();
    toast();
    ASSERT_TRUE(changes(toastCard, before));
    EXPECT_EQ(taken(*begin(u"screen"_s)), before);
    EXPECT_NE(see(toastCard), before.copy(toastCard)) << "it was still there";
    ASSERT_TRUE(returns(before));

    const auto delayed = begin(u"delayed"_s);
    ASSERT_TRUE(changes(countdownCard, before));
    EXPECT_EQ(taken(*delayed), before);
    EXPECT_TRUE(returns(before));
}

} // namespace

TEST_F(SurfacesTest, leaveNoTraceInCaptures)
{
    leavesNoTraceInCaptures();
}

TEST_F(CompositedSurfacesTest, leaveNoTraceInCaptures)
{
    leavesNoTraceInCaptures();
}

TEST_F(SurfacesTest, leaveTheKeyboardToWhomItBelongs)
{
    const auto thin = open({u"--geometry"_s, u"100,100,30x200"_s});
    const QImage before = settledPixels();
    const auto typing = [&] {
        desktop().key("a");
        return !thin.client->waitForLine("key a").isNull();
    };
    EXPECT_TRUE(typing());
    toast();
    ASSERT_TRUE(changes(toastCard, before));
    EXPECT_TRUE(typing());
    const auto delayed = begin(u"delayed"_s);
    ASSERT_TRUE(changes(countdownCard, before));
    EXPECT_TRUE(typing());
    EXPECT_TRUE(delayed->waitForEnd());
    ASSERT_TRUE(returns(before));
    EXPECT_TRUE(typing());
    EXPECT_FALSE(thin.client->output().contains("focus out"));
}

TEST_F(SurfacesTest, giveTheKeyboardBackThatAClickTook)
{
    const auto thin = open({u"--geometry"_s, u"100,100,30x200"_s});
    ASSERT_FALSE(thin.client->waitForLine("focus in").isNull());
    const QImage before = settledPixels();
    toast();
    ASSERT_TRUE(changes(toastCard, before));
    desktop().clickAt(toastCard.center());
    EXPECT_FALSE(thin.client->waitForLine("focus out").isNull());
    EXPECT_FALSE(thin.client->waitForLine("focus in").isNull());
}

TEST_F(SurfacesTest, cancelADelayedCaptureByAClick)
{
    const QImage before = settledPixels();
    const auto delayed = begin(u"delayed"_s);
    ASSERT_TRUE(changes(countdownCard, before));
    desktop().clickAt(countdownCard.center());
    ASSERT_TRUE(delayed->waitForEnd());
    EXPECT_EQ(delayed->exitCode(), 1);
    desktop().moveTo({5, 5});
    EXPECT_TRUE(returns(before));
    EXPECT_EQ(taken(*begin(u"screen"_s)), before) << "ready for the next one";
}

TEST_F(SurfacesTest, greetANewcomerOnceAndLaterOpenThePanel)
{
    const QImage before = see();
    ASSERT_TRUE(desktop().run(u"pixmallow"_s, {u"capture"_s, u"screen"_s, u"--wait"_s}));
    EXPECT_EQ(see(), before) << "not while a script works";
    run({u"quit"_s});
    const auto first = desktop().launch(u"pixmallow-desktop"_s, {});
    ASSERT_TRUE(first);
    const auto closes = [&](const char* key) { // It takes a moment until it has the keyboard.
        return waitFor([&] {
            desktop().key(key);
            return waitFor([&] { return see() == before; }, std::chrono::milliseconds(300));
        });
    };
    ASSERT_TRUE(changes(before.rect(), before));
    ASSERT_TRUE(closes("Return"));
    run({u"quit"_s});
    ASSERT_TRUE((*first)->waitForEnd());
    const auto second = desktop().launch(u"pixmallow-desktop"_s, {});
    ASSERT_TRUE(second);
    ASSERT_TRUE(changes(before.rect(), before));
    ASSERT_TRUE(closes("Escape"));
    EXPECT_EQ(taken(*begin(u"screen"_s)), before);
    EXPECT_EQ(see(), before);
}

TEST_F(TwoMonitorSurfacesTest, appearOnTheScreenUnderThePointer)
{
    const QImage before = see();
    constexpr QRect left(608, 608, 640, 160), right(1968, 722, 320, 80); // Of 2 pixels a point, 1.
    desktop().moveTo({1500, 300});
    toast();
    EXPECT_TRUE(changes(right, before));
    EXPECT_EQ(see(left), before.copy(left));
    desktop().moveTo({300, 300});
    toast(); // In place of the first.
    EXPECT_TRUE(changes(left, before));
    EXPECT_EQ(see(right), before.copy(right));
}
