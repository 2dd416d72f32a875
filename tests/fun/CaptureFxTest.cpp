// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "fun/CaptureFx.h"

#include "platform/fake/FakePlatform.h"
#include "platform/fake/FakeSurfaceTraits.h"
#include "tests/desktop/Waiting.h"

#include <QElapsedTimer>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class CaptureFxTest : public testing::Test {
protected:
    CaptureFxTest()
        : folders {.configuration = home.path()}
        , prefs(folders)
        , skins(prefs, platform.fakeAppearance())
        , themes(skins, platform.fakeAppearance())
        , effects({platform.fakeDisplays(), surfaces, themes, prefs})
        , picture(60, 40, QImage::Format_RGB32)
    {
        prefs.registerDefaults();
        skins.apply();
        picture.fill(Qt::green);
    }

    bool ends(std::chrono::milliseconds most)
    {
        return waitFor([this] { return effects.running() == 0; }, most);
    }

    QTemporaryDir home;
    Folders folders;
    FakePlatform platform;
    FakeSurfaceTraits surfaces;
    Prefs prefs;
    Skins skins;
    Themes themes;
    CaptureFx effects;
    QImage picture;
    const QRectF area {20, 30, 60, 40};
};

} // namespace

TEST_F(CaptureFxTest, playsNothingWhereThereIsNothingToPlay)
{
    effects.play(u"none"_s, area, picture);
    effects.play(u"flash"_s, {20, 30, 2, 100}, picture);
    EXPECT_EQ(effects.running(), 0);
    platform.fakeDisplays().displays.clear();
    effects.play(u"flash"_s, area, picture);
    EXPECT_EQ(effects.running(), 0);
}

TEST_F(CaptureFxTest, playsSideBySideAndEndsByItself)
{
    QElapsedTimer elapsed;
    elapsed.start();
    effects.play(u"flash"_s, area, picture);
    effects.play(u"flash"_s, area, picture);
    EXPECT_EQ(effects.running(), 2);
    EXPECT_TRUE(ends(5s));
    EXPECT_GE(elapsed.elapsed(), 390) << "0.3 s and a little";
}

TEST_F(CaptureFxTest, isAFlashUnderReducedMotionAndGoneWithTheBlending)
{
    DesktopLook still;
    still.reducedMotion = true;
    platform.fakeAppearance().set(still);
    QElapsedTimer elapsed;
    elapsed.start();
    effects.play(u"confetti"_s, area, picture);
    EXPECT_TRUE(ends(5s));
    EXPECT_LT(elapsed.elapsed(), 1500);

    effects.play(u"flash"_s, area, picture);
    Q_EMIT surfaces.blendingChanged();
    EXPECT_EQ(effects.running(), 0);
}

TEST_F(CaptureFxTest, readsTheChosenKind)
{
    EXPECT_EQ(effects.current(), u"flash"_s);
    prefs.set(Prefs::keys.captureAnimation, u"sparkles"_s);
    EXPECT_EQ(effects.current(), u"sparkles"_s);
    prefs.set(Prefs::keys.captureAnimation, u"fireworks"_s);
    EXPECT_EQ(effects.current(), u"flash"_s);
}
