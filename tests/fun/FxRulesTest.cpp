// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "fun/FxRules.h"

#include <QRegion>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using namespace FxRules;

namespace {

const DisplayInfo first {1, u"L"_s, QRect(0, 0, 2560, 1600), 2, QRectF(0, 0, 1280, 800)};
/// Right of the first, its head 50 points lower and its foot 18 below the first's.
const DisplayInfo second {2, u"R"_s, QRect(2560, 50, 1024, 768), 1, QRectF(2560, -18, 1024, 768)};

} // namespace

TEST(FxRulesTest, knowsKindsByTheirTextAndFliesForAnyOther)
{
    EXPECT_EQ(planOf(u"none"), Plan());
    EXPECT_EQ(planOf(u"flash"), (Plan {FxKind::Flash, 0.3}));
    EXPECT_EQ(planOf(u"confetti"), (Plan {FxKind::Confetti, 1.6}));
    EXPECT_EQ(planOf(u"sparkles"), (Plan {FxKind::Sparkles, 1.1}));
    EXPECT_EQ(planOf(u"pixels"), (Plan {FxKind::Pixels, 1.3}));
    EXPECT_EQ(planOf(u"fly"), (Plan {FxKind::Fly, 0.8}));
    EXPECT_EQ(planOf(u"Flash"), (Plan {FxKind::Fly, 1.0}));
    EXPECT_EQ(planOf(u""), (Plan {FxKind::Fly, 1.0}));

    EXPECT_EQ(known(u"none"_s), u"none"_s);
    EXPECT_EQ(known(u"fly"_s), u"fly"_s);
    EXPECT_EQ(known(u"outline"_s), u"flash"_s);
    EXPECT_EQ(known({}), u"flash"_s);
}

TEST(FxRulesTest, theOutlineIsOneFrameThatThinsAndEnds)
{
    const QRectF area(100.5, 60, 120, 90);
    const QRect outer(100, 60, 121, 90);
    int before = 7;
    for (const double seconds : {0.0, 0.1, 0.2}) {
        QRegion frame;
        int pixels = 0;
        for (const QRect& side : outlineAt(seconds, 0.3, area)) {
            frame += side;
            pixels += side.width() * side.height();
        }
        const int thickness = outlineAt(seconds, 0.3, area)[0].height();
        const QRect inner = outer.adjusted(thickness, thickness, -thickness, -thickness);
        EXPECT_EQ(frame, QRegion(outer) - inner) << seconds;
        EXPECT_EQ(pixels, outer.width() * outer.height() - inner.width() * inner.height());
        EXPECT_LT(thickness, std::exchange(before, thickness));
    }
    for (const QRect& side : outlineAt(0.3, 0.3, area))
        EXPECT_TRUE(side.isEmpty());
}

TEST(FxRulesTest, flashesWithoutMotionAndOutlinesWithoutBlending)
{
    const Plan confetti = planOf(u"confetti"), flash = planOf(u"flash");
    EXPECT_EQ(adapted(confetti, Movement::Full, Windows::Blended), confetti);
    EXPECT_EQ(adapted(confetti, Movement::Reduced, Windows::Blended), flash);
    for (const auto movement : {Movement::Full, Movement::Reduced}) {
        EXPECT_EQ(adapted(confetti, movement, Windows::Opaque), (Plan {FxKind::Outline, 0.3}));
        EXPECT_EQ(adapted({}, movement, Windows::Opaque), Plan());
    }
}

TEST(FxRulesTest, playsOnTheFirstDisplayThatShowsSomeOfTheArea)
{
    const QList<DisplayInfo> both {first, second};
    EXPECT_EQ(displayOf({10, 10, 20, 20}, both), &both[0]);
    EXPECT_EQ(displayOf({2600, 0, 20, 20}, both), &both[1]);
    EXPECT_EQ(displayOf({1270, 10, 1400, 20}, both), &both[0]) << "on both";
    EXPECT_EQ(displayOf({9000, 10, 20, 20}, both), &both[0]) << "on none";
    EXPECT_EQ(displayOf({10, 10, 20, 20}, {}), nullptr);

    EXPECT_EQ(onDisplay({100, 700, 300, 60}, first), QRectF(100, 40, 300, 60));
    EXPECT_EQ(onDisplay({2660, -18, 30, 768}, second), QRectF(100, 0, 30, 768));

    EXPECT_FALSE(isLargeEnough({0, 0, 2, 100}));
    EXPECT_FALSE(isLargeEnough({0, 0, 100, 2}));
    EXPECT_TRUE(isLargeEnough({0, 0, 2.5, 2.5}));
}

TEST(FxRulesTest, fliesToTheTrayOrToTheEndOfThePanel)
{
    const QRectF frame(1280, 50, 1024, 768);
    EXPECT_EQ(landing(frame, frame, QPointF(2200, 800)), QPointF(920, 750));
    const QPointF head = landing(frame, frame.adjusted(0, 30, 0, 0), {});
    EXPECT_TRUE(QRectF(900, 0, 124, 30).contains(head));
    EXPECT_EQ(landing(frame, frame, QPointF(20, 20)), head) << "the icon is on another screen";
    const QPointF foot = landing(frame, frame.adjusted(0, 0, 0, -30), {});
    EXPECT_TRUE(QRectF(900, 738, 124, 30).contains(foot));
}
