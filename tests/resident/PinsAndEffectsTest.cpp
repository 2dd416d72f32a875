// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/resident/ResidentDesktop.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr QRgb backdrop = 0xff204060;

DesktopOptions composited()
{
    DesktopOptions options;
    options.compositor = Compositor::Picom;
    return options;
}

QImage picture()
{
    return pictureOf({.seed = 11}, {300, 200}).convertToFormat(QImage::Format_RGB32);
}

/// Where a pin of that picture opens: in the middle of the screen.
constexpr QRect pinned(490, 300, 300, 200);
/// What of it is exactly the picture: neither its round corners nor its border.
constexpr QRect inside = pinned.adjusted(8, 8, -8, -8);

template <DesktopOptions (*options)()>
class SurfaceDesktop : public ResidentDesktop<options> {
protected:
    using Base = ResidentDesktop<options>;
    using Base::desktop;
    using Base::pixmallow;
    using Base::settledPixels;

    void SetUp() override
    {
        Base::SetUp();
        if (testing::Test::IsSkipped())
            return;
        QImage plain(1280, 800, QImage::Format_RGB32);
        plain.fill(backdrop);
        desktop().setRootPicture(plain);
        EXPECT_TRUE(desktop().waitForPixel({5, 5}, backdrop));
        EXPECT_TRUE(picture().save(file()));
    }

    /// Before the resident program starts.
    void choose(const QByteArray& effect)
    {
        Base::setPreferences(R"({"afterCapture":"none","captureAnimation":")" + effect + R"("})");
    }

    static QString file() { return desktop().home() + u"/pinned picture.png"_s; }

    void pin()
    {
        const auto pinning = pixmallow({u"pin"_s, file()});
        EXPECT_EQ(pinning.exitCode, 0) << pinning.errors.toStdString();
        EXPECT_TRUE(isPinned());
    }
    static bool isPinned(QPoint shift = {})
    {
        const QImage shown = picture().copy(inside.translated(-pinned.topLeft()));
        return waitFor(
            [&] { return equal(desktop().rootPixels(inside.translated(shift)), shown); });
    }
    static QRgb colourAt(QPoint at) { return desktop().rootPixels({at, QSize(1, 1)}).pixel(0, 0); }
};

using PlainTest = SurfaceDesktop<plainDesktop>;
using CompositedTest = SurfaceDesktop<composited>;

} // namespace

TEST_F(CompositedTest, letsClicksThroughWhileAnEffectPlays)
{
    choose("confetti");
    const auto window = open({u"--colour"_s, u"#336699"_s, u"--geometry"_s, u"200,150,900x500"_s});
    const QImage before = settledPixels(window.geometry);
    const auto plays = [&] { return !equal(desktop().rootPixels(window.geometry), before); };
    capture(u"screen"_s);
    ASSERT_TRUE(waitFor(plays));
    desktop().clickAt({640, 400});
    EXPECT_FALSE(window.client->waitForLine("press 1").isNull());
    EXPECT_TRUE(plays()) << "the click came too late to prove anything";
    EXPECT_TRUE(waitFor([&] { return !plays(); })) << "it does not end";
}

TEST_F(CompositedTest, neitherEffectNorPinIsInACapture)
{
    for (const QByteArray effect : {"flash", "pixels", "fly"}) {
        choose(effect);
        const QImage before = settledPixels();
        pin();
        const QImage withPin = settledPixels();
        EXPECT_TRUE(equal(QImage(capture(u"screen"_s)[u"path"_s].toString()), before));
        EXPECT_TRUE(waitFor([&] { return !equal(desktop().rootPixels(), withPin); }))
            << "no effect: " << effect.toStdString();
        EXPECT_TRUE(equal(QImage(capture(u"screen"_s)[u"path"_s].toString()), before));
        EXPECT_TRUE(waitFor([&] { return equal(desktop().rootPixels(), withPin); }));
        pixmallow({u"quit"_s});
        EXPECT_TRUE(waitFor([&] { return equal(desktop().rootPixels(), before); }));
    }
}

TEST_F(PlainTest, neitherEffectNorPinIsInACaptureAndNothingIsBlack)
{
    choose("pixels");
    const QImage before = settledPixels();
    pin();
    const QImage withPin = settledPixels();
    EXPECT_TRUE(equal(QImage(capture(u"screen"_s)[u"path"_s].toString()), before));
    const QImage during = desktop().rootPixels();
    EXPECT_TRUE(equal(QImage(capture(u"screen"_s)[u"path"_s].toString()), before));
    const QRect middle(10, 10, 1260, 780);
    EXPECT_TRUE(equal(during.copy(middle), withPin.copy(middle))) << "more than an outline";
    EXPECT_NE(during.pixel(1, 1), withPin.pixel(1, 1)) << "no outline";
    EXPECT_TRUE(waitFor([&] { return equal(desktop().rootPixels(), withPin); }));
}

TEST_F(CompositedTest, aPinFollowsKeysWheelAndMouse)
{
    const auto window = open({u"--geometry"_s, u"20,40,200x100"_s});
    pin();
    desktop().moveTo({640, 400});
    const QRgb shadow = colourAt({800, 400});
    desktop().click(4);
    EXPECT_TRUE(waitFor([&] { return colourAt({800, 400}) != shadow; })) << "not enlarged";
    desktop().click(5);
    EXPECT_TRUE(isPinned());

    for (const QByteArray modifier : {"alt", "ctrl"}) {
        const QPoint nearEdge(785, 400);
        const QRgb full = colourAt(nearEdge);
        desktop().pressKey(modifier);
        desktop().click(5);
        // By a twentieth, and no smaller than it was.
        const int faded = int(std::lround(0.95 * qRed(full) + 0.05 * qRed(backdrop)));
        EXPECT_TRUE(waitFor([&] { return colourAt(nearEdge) != full; }));
        EXPECT_NEAR(qRed(colourAt(nearEdge)), faded, 2) << modifier.toStdString();
        desktop().click(4);
        desktop().releaseKey(modifier);
        EXPECT_TRUE(isPinned()) << modifier.toStdString();
    }

    desktop().drag({600, 400}, {560, 430});
    EXPECT_TRUE(isPinned({-40, 30}));
    desktop().clickAt({600, 430}, 3);
    ASSERT_TRUE(waitFor([&] { return colourAt({610, 440}) != picture().pixel(160, 110); }));
    desktop().key("Up"); // The last item.
    desktop().key("Return");
    EXPECT_TRUE(waitFor([&] { return colourAt({460, 340}) == backdrop; })) << "not closed";
    desktop().key("x");
    EXPECT_FALSE(window.client->waitForLine("key x").isNull()) << "the keyboard was not given back";
}

TEST_F(PlainTest, aPinTakesTheKeyboardAndGivesItBack)
{
    const auto window = open({u"--geometry"_s, u"20,40,200x100"_s});
    pin();
    EXPECT_FALSE(window.client->waitForLine("focus out").isNull());
    desktop().key("Escape");
    EXPECT_TRUE(desktop().waitForPixel(inside.center(), backdrop));
    desktop().key("x");
    EXPECT_FALSE(window.client->waitForLine("key x").isNull());

    pin();
    desktop().clickAt({100, 100}); // Into the other window, so the pin has it no longer.
    EXPECT_TRUE(waitFor([&] { // Once the window manager has followed the click.
        desktop().key("y");
        return !window.client->waitForLine("key y", 200ms).isNull();
    }));
    desktop().clickAt({640, 400});
    desktop().click(); // Twice in short order.
    EXPECT_TRUE(desktop().waitForPixel(inside.center(), backdrop));
}

TEST_F(PlainTest, saysWhichFilesCannotBePinnedAndPinsTheOthers)
{
    const QString damaged = desktop().home() + u"/damaged.png"_s;
    QFile half(damaged), whole(file());
    ASSERT_TRUE(half.open(QIODevice::WriteOnly) && whole.open(QIODevice::ReadOnly));
    half.write(whole.read(2000));
    half.close();
    const auto finished = pixmallow({u"pin"_s, u"missing.png"_s, file(), damaged});
    EXPECT_EQ(finished.exitCode, 2);
    EXPECT_TRUE(finished.errors.contains("missing.png") && finished.errors.contains("damaged.png"))
        << finished.errors.toStdString();
    EXPECT_FALSE(finished.errors.contains("pinned picture"));
    EXPECT_TRUE(isPinned());
}
