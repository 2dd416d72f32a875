// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "preview/EffectBorder.h"
#include "preview/EffectPalette.h"
#include "preview/PreviewCountdown.h"
#include "preview/PreviewThumbnail.h"

#include <QPainter>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Ticks until the card is to close, at most a minute of them.
int ticksToClose(PreviewCountdown& countdown, int seconds)
{
    for (int tick = 1; tick <= 600; ++tick)
        if (countdown.advance(seconds, false))
            return tick;
    return -1;
}

QImage frameOf(const EffectBorder& border, double seconds)
{
    QImage image(200, 120, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    border.paint(painter, QRectF(20, 20, 160, 80), seconds);
    return image;
}

} // namespace

TEST(PreviewCountdownTest, closesAfterTheTimeThatNobodyWasBusyWithIt)
{
    PreviewCountdown plain;
    EXPECT_EQ(ticksToClose(plain, 6), 60);

    PreviewCountdown paused;
    for (int tick = 0; tick < 20; ++tick)
        EXPECT_FALSE(paused.advance(6, false));
    for (int tick = 0; tick < 200; ++tick) {
        ASSERT_FALSE(paused.advance(6, true));
        ASSERT_DOUBLE_EQ(paused.left(6), 40 / 60.0) << "nothing is lost, nothing starts again";
    }
    EXPECT_EQ(ticksToClose(paused, 6), 40);
    EXPECT_EQ(paused.left(6), 0);
}

TEST(PreviewCountdownTest, staysForGoodWithoutATime)
{
    for (const int seconds : {0, -3}) {
        PreviewCountdown countdown;
        EXPECT_EQ(ticksToClose(countdown, seconds), -1);
        EXPECT_EQ(countdown.left(seconds), 0) << "no bar";
    }
    PreviewCountdown changed;
    EXPECT_FALSE(changed.advance(10, false));
    EXPECT_EQ(changed.left(2), 0.95) << "the preference counts as it is now";
}

TEST(EffectPaletteTest, fallsBackToTheAccentAndHasNoSeam)
{
    const QColor accent(10, 200, 30);
    const auto plain = EffectPalette::colours(u"accent", accent);
    ASSERT_EQ(plain.size(), 2);
    EXPECT_EQ(plain[0], accent);
    EXPECT_NEAR(plain[1].alphaF(), 0.6, 0.001);
    EXPECT_EQ(EffectPalette::colours(u"", accent), plain);
    EXPECT_EQ(EffectPalette::colours(u"plaid", accent), plain);
    EXPECT_EQ(EffectPalette::colours(u"rainbow", accent).size(), 7);
    for (const auto name : EffectPalette::names) {
        const auto colours = EffectPalette::colours(name, accent);
        EXPECT_EQ(EffectPalette::at(colours, 0.0).rgba(), colours.first().rgba());
        EXPECT_EQ(EffectPalette::at(colours, 0.25).rgba(), EffectPalette::at(colours, 3.25).rgba());
        const QColor beforeSeam = EffectPalette::at(colours, 0.9999);
        EXPECT_LT(std::abs(beforeSeam.green() - colours.first().green()), 2);
    }
}

TEST(EffectBorderTest, movesWithTimeAndStaysNearTheBorder)
{
    EXPECT_FALSE(EffectBorder::effect(u"none"_s));
    EXPECT_FALSE(EffectBorder::effect(u"sparkle"_s));
    const auto colours = EffectPalette::colours(u"neon", Qt::blue);
    for (const QString& name : {u"comet"_s, u"pulse"_s, u"spin"_s}) {
        SCOPED_TRACE(name.toStdString());
        const EffectBorder border(*EffectBorder::effect(name), colours, 10);
        const QImage early = frameOf(border, 0.3);
        EXPECT_EQ(early, frameOf(border, 0.3)) << "the same time, the same picture";
        EXPECT_NE(early, frameOf(border, 0.9));
        EXPECT_EQ(early.pixelColor(100, 60).alpha(), 0) << "the picture is left alone";
        EXPECT_EQ(early.pixelColor(5, 5).alpha(), 0);
        EXPECT_EQ(early.pixelColor(100, 20 - int(EffectBorder::reach) - 2).alpha(), 0);
        EXPECT_GT(early.pixelColor(180, 60).alpha() + early.pixelColor(100, 20).alpha(), 0);
    }
}

TEST(PreviewThumbnailTest, fitsAnyPictureWithoutBendingIt)
{
    EXPECT_EQ(PreviewThumbnail::fitted({3840, 2160}), QSizeF(310, 174.375));
    EXPECT_EQ(PreviewThumbnail::fitted({1000, 1000}), QSizeF(190, 190));
    EXPECT_EQ(PreviewThumbnail::fitted({20, 10}), QSizeF(310, 155));
    EXPECT_EQ(PreviewThumbnail::fitted({20000, 2}), QSizeF(310, 1)) << "never thinner";
}
