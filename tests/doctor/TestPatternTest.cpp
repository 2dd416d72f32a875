// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "doctor/TestPattern.h"

#include "base/Bitmap.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

/// What is found when the pattern comes back with changed pixels.
PatternComparison captured(const std::function<QRgb(QRgb, QPoint)>& change)
{
    const QImage drawn = TestPattern::draw();
    Bitmap bitmap(drawn.size(), PixelFormat::Rgb32);
    for (int y = 0; y < drawn.height(); ++y)
        for (int x = 0; x < drawn.width(); ++x)
            bitmap.row(y)[x] = change(drawn.pixel(x, y), {x, y});
    BitmapRows rows(bitmap);
    const auto result = TestPattern::compare(drawn, rows);
    EXPECT_TRUE(result);
    return *result;
}

} // namespace

TEST(TestPatternTest, countsThePixelsThatCameBackDifferent)
{
    const auto exact = captured([](QRgb pixel, QPoint) { return pixel & 0xffffff; });
    EXPECT_EQ(exact.wrong, 0) << "the top byte of an opaque pixel holds anything";
    EXPECT_EQ(exact.pixels, 240 * 136);
    EXPECT_FALSE(exact.isBlack);

    const auto one = captured(
        [](QRgb pixel, QPoint at) { return at == QPoint(239, 135) ? pixel ^ 0x000003 : pixel; });
    EXPECT_EQ(one.wrong, 1);
    EXPECT_LE(one.largestDifference, 3);
    EXPECT_GT(one.largestDifference, 0);

    const auto black = captured([](QRgb, QPoint) { return 0xff000000; });
    EXPECT_TRUE(black.isBlack);
    EXPECT_GT(black.wrong, black.pixels / 2);
}

TEST(TestPatternTest, tellsAPictureThatWasShiftedScaledOrRecoloured)
{
    const QImage drawn = TestPattern::draw();
    const auto at = [&drawn](int x, int y) {
        return drawn.pixel(std::min(x, drawn.width() - 1), std::min(y, drawn.height() - 1));
    };
    const std::function<QRgb(QRgb, QPoint)> changes[]
        = {[&](QRgb, QPoint p) { return at(p.x() + 1, p.y()); },
            [&](QRgb, QPoint p) { return at(p.x(), p.y() + 2); },
            [&](QRgb, QPoint p) { return at(p.x() / 2 * 2, p.y()); },
            [](QRgb pixel, QPoint) { return qRgb(qBlue(pixel), qGreen(pixel), qRed(pixel)); }};
    for (const auto& change : changes)
        EXPECT_GT(captured(change).largestDifference, 100);

    const auto fewerShades = captured([](QRgb pixel, QPoint) { return pixel & 0xfff8fcf8; });
    EXPECT_GT(fewerShades.wrong, fewerShades.pixels / 2);
    EXPECT_LE(fewerShades.largestDifference, 7);

    BitmapRows small(Bitmap({10, 10}, PixelFormat::Rgb32));
    const auto cut = TestPattern::compare(drawn, small);
    ASSERT_TRUE(cut);
    EXPECT_EQ(cut->wrong, cut->pixels);
}
