// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/x11/Reply.h"
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

DesktopOptions twoScreens()
{
    DesktopOptions options;
    options.monitors = {{u"L"_s, QRect(0, 0, 1280, 800)}, {u"R"_s, QRect(1280, 50, 1024, 768)}};
    return options;
}

/// The preview card as it is seen and handled from outside.
template <DesktopOptions (*options)()>
class CardDesktop : public ResidentDesktop<options> {
protected:
    using Base = ResidentDesktop<options>;
    using Base::desktop;

    void SetUp() override
    {
        Base::SetUp();
        if (testing::Test::IsSkipped())
            return;
        Base::setPreferences("{}");
        const auto* const screen = &desktop().screen();
        QImage plain(screen->width_in_pixels, screen->height_in_pixels, QImage::Format_RGB32);
        plain.fill(backdrop);
        desktop().setRootPicture(plain);
        EXPECT_TRUE(desktop().waitForPixel({0, 0}, backdrop));
    }

    static xcb_window_t focus()
    {
        auto* const xcb = desktop().connection();
        const auto reply = owned(xcb_get_input_focus_reply(xcb, xcb_get_input_focus(xcb), nullptr));
        return reply ? reply->focus : xcb_window_t(XCB_NONE);
    }

    /// Whether a card comes into the bottom right corner of a screen, in its final place.
    bool comes(QRect screen = {0, 0, 1280, 800})
    {
        return waitFor([&] { return isBright(foot(screen)) && isBright(head(screen)); });
    }
    bool goes(QRect screen = {0, 0, 1280, 800})
    {
        return desktop().waitForPixel(foot(screen), backdrop);
    }

    /// On the card's background, 16 points from the edges, above the bar.
    static QPoint foot(QRect screen = {0, 0, 1280, 800})
    {
        return screen.bottomRight() - QPoint(16 + 170, 16 + 6);
    }
    static QPoint head(QRect screen) { return foot(screen) - QPoint(0, 324); } ///< Likewise.
    static QPoint picture() { return foot() - QPoint(0, 180); }

private:
    bool isBright(QPoint at)
    {
        return qGray(desktop().rootPixels(QRect(at, QSize(1, 1))).pixel(0, 0)) > 200;
    }
};

using CardTest = CardDesktop<plainDesktop>;
using CompositedCardTest = CardDesktop<composited>;
using TwoScreenCardTest = CardDesktop<twoScreens>;

} // namespace

TEST_F(CardTest, takesTheKeyboardByAClickOnlyAndGivesItBack)
{
    const auto window = open({u"--geometry"_s, u"100,100,300x200"_s});
    capture(u"screen"_s);
    ASSERT_TRUE(comes());
    desktop().key("a");
    EXPECT_FALSE(window.client->waitForLine("key a").isNull());
    desktop().clickAt(foot());
    ASSERT_TRUE(waitFor([&] { return focus() != window.id; }));
    desktop().key("Escape");
    ASSERT_TRUE(goes());
    EXPECT_TRUE(waitFor([&] { return focus() == window.id; }));
    desktop().key("b");
    EXPECT_FALSE(window.client->waitForLine("key b").isNull());
    EXPECT_FALSE(window.client->output().contains("key Escape"));
}

TEST_F(CardTest, isInNoCapture)
{
    const auto before = desktop().rootPixels();
    capture(u"screen"_s);
    ASSERT_TRUE(comes());
    const auto report = capture(u"screen"_s);
    EXPECT_TRUE(equal(QImage(report[u"path"_s].toString()), before));
    ASSERT_TRUE(comes());
    const QString file = desktop().home() + u"/shot.png"_s;
    EXPECT_EQ(pixmallow({u"shot"_s, u"--output"_s, file}).exitCode, 0);
    EXPECT_TRUE(equal(QImage(file), before)) << "while it is shown";
}

TEST_F(CompositedCardTest, isInNoCaptureNorIsItsShadow)
{
    const auto before = desktop().rootPixels();
    capture(u"screen"_s);
    ASSERT_TRUE(comes());
    const QString file = desktop().home() + u"/shot.png"_s;
    EXPECT_EQ(pixmallow({u"shot"_s, u"--output"_s, file}).exitCode, 0);
    EXPECT_TRUE(equal(QImage(file), before));
}

TEST_F(CardTest, isDraggedIntoAnotherProgramAsAFile)
{
    auto target = desktop().launch(u"drop-target"_s, {});
    ASSERT_TRUE(target);
    ASSERT_FALSE((*target)->waitForLine("ready").isNull());
    const auto path = capture(u"screen"_s)[u"path"_s].toString();
    ASSERT_TRUE(comes());
    desktop().moveTo(picture());
    desktop().press();
    // Of the second step above a window the card only tells once it knows that it may drop there.
    int step = 0, steps = 0;
    EXPECT_TRUE(waitFor([&] {
        desktop().moveTo({250 + ++step % 2, 250});
        steps += !(*target)->waitForLine("over", 100ms).isNull();
        return steps >= 2;
    }));
    desktop().release();
    EXPECT_EQ((*target)->waitForLine("dropped "), "dropped " + path.toLocal8Bit());
}

TEST_F(CardTest, staysWhileThePointerIsOnIt)
{
    setPreferences(R"({"previewSeconds":1})");
    desktop().moveTo({600, 400});
    capture(u"screen"_s);
    EXPECT_TRUE(comes());
    EXPECT_TRUE(goes()) << "by itself";
    capture(u"screen"_s);
    ASSERT_TRUE(comes());
    desktop().moveTo(foot());
    EXPECT_FALSE(waitFor([] { return false; }, 2500ms)); // Longer than it would have stayed.
    EXPECT_TRUE(comes());
    desktop().moveTo({600, 400});
    EXPECT_TRUE(goes());
}

TEST_F(TwoScreenCardTest, comesOnTheScreenUnderThePointer)
{
    const QRect left(0, 0, 1280, 800);
    const QRect right(1280, 50, 1024, 768);
    desktop().moveTo({1500, 300});
    capture(u"screen"_s);
    EXPECT_TRUE(comes(right));
    desktop().moveTo({300, 300});
    capture(u"screen"_s);
    EXPECT_TRUE(comes(left));
    EXPECT_TRUE(goes(right)) << "there is one card at most";
}
