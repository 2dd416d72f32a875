// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "fun/PopUps.h"

#include "fun/PopUpView.h"
#include "tests/capture/SurfaceTest.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class PopUpsTest : public SurfaceTest {
protected:
    /// What is said by the only one shown; empty when there is none.
    QString shownText()
    {
        QCoreApplication::processEvents();
        return popUps.panel() ? popUps.panel()->accessibleName() : QString();
    }
    /// Until the one that is shown has faded away and the next one would be there.
    void passOne()
    {
        time.pass(PopUps::shown);
        const auto* const before = popUps.panel();
        const QDeadlineTimer deadline(5000);
        while (before && popUps.panel() == before && !deadline.hasExpired())
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        time.pass(PopUps::between);
    }
    void takeFiftyCaptures()
    {
        for (int i = 0; i < 50; ++i)
            fun.capture();
    }

    const Folders folders {.data = folder.path()};
    FakeDisplays displays;
    FakeSoundOutput output;
    SynthSounds sounds {folders, prefs, output};
    Fun fun {folders, prefs,
        {[] {
             return QDateTime({2026, 3, 7}, {12, 0});
         },
            [](int) { return 0; }}};
    bool isFullScreen = false;
    PopUps popUps {
        {surroundings, displays, sounds, fun, [this] { return isFullScreen; }, time.callLater()}};
};

} // namespace

TEST_F(PopUpsTest, comeOneAfterTheOtherEachWithItsSound)
{
    takeFiftyCaptures();
    QStringList seen;
    QCoreApplication::processEvents();
    time.pass(PopUps::between);
    for (int i = 0; i < 9 && !shownText().isEmpty(); ++i) {
        seen << shownText();
        EXPECT_EQ(output.played.size(), i + 1);
        passOne();
    }
    EXPECT_EQ(seen,
        QStringList({u"Achievement unlocked: First Snap. Take your first screenshot"_s,
            u"Your pet evolved!: Pixie is now a Hatchling."_s,
            u"Level up!: Pixie reached level 3."_s, u"Your pet evolved!: Pixie is now a Chick."_s,
            u"Achievement unlocked: Snap Happy. Take 50 screenshots"_s,
            u"Achievement unlocked: Screenshot Goblin. 50 screenshots in one day"_s}));
    EXPECT_TRUE(output.played.value(0).file.fileName().startsWith(u"sparkle"_s));
}

TEST_F(PopUpsTest, stayAwayFromCapturesAndFromWhoHasTheScreenToItself)
{
    isFullScreen = true;
    popUps.captureBegins();
    fun.capture();
    QCoreApplication::processEvents();
    time.pass(1min);
    EXPECT_EQ(shownText(), QString());
    popUps.captureEnded();
    time.pass(1min);
    EXPECT_EQ(shownText(), QString());
    isFullScreen = false;
    for (int i = 0; i < 50 && !popUps.panel(); ++i)
        time.pass(PopUps::patience / 50);
    EXPECT_TRUE(shownText().contains(u"First Snap"_s));

    time.pass(1s);
    popUps.captureBegins(); // It goes at once, and the user has not read it yet.
    EXPECT_FALSE(popUps.panel());
    time.pass(1min);
    EXPECT_EQ(shownText(), QString());
    popUps.captureEnded();
    time.pass(PopUps::between);
    EXPECT_TRUE(shownText().contains(u"First Snap"_s));
    passOne();
    EXPECT_EQ(shownText(), QString());
}

TEST_F(PopUpsTest, oneThatIsClickedLeadsToTheGallery)
{
    int wanted = 0;
    QObject::connect(&popUps, &PopUps::galleryWanted, [&wanted] { ++wanted; });
    fun.capture();
    QCoreApplication::processEvents();
    time.pass(PopUps::between);
    ASSERT_TRUE(popUps.panel());
    Q_EMIT popUps.panel()->findChild<PopUpView*>()->clicked();
    passOne();
    EXPECT_EQ(wanted, 1);
    EXPECT_FALSE(popUps.panel());
}
