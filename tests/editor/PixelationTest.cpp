// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/Pixelation.h"

#include <gtest/gtest.h>

#include <random>

namespace {

QImage noise(QSize size)
{
    std::mt19937 random(8);
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, unsigned(random()) | 0xff000000);
    return image;
}

/// By the book: each square's average over what it has of the area.
QImage expected(const QImage& image, const QRect& area, int block)
{
    QImage result(area.size(), image.format());
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x) {
            const QRect square = QRect(x / block * block, y / block * block, block, block) & area;
            unsigned sums[4] = {}, pixel = 0;
            for (int v = square.top(); v <= square.bottom(); ++v)
                for (int u = square.left(); u <= square.right(); ++u)
                    for (int channel = 0; channel < 4; ++channel)
                        sums[channel] += image.pixel(u, v) >> 8 * channel & 255;
            const auto count = unsigned(square.width() * square.height());
            for (int channel = 0; channel < 4; ++channel)
                pixel |= (sums[channel] + count / 2) / count << 8 * channel;
            result.setPixel(x - area.left(), y - area.top(), pixel);
        }
    return result;
}

} // namespace

TEST(PixelationTest, averagesEachSquareClippedToTheArea)
{
    const QImage image = noise({61, 47});
    for (const QRect area : {QRect(0, 0, 61, 47), QRect(13, 7, 31, 29), QRect(5, 6, 2, 2),
             QRect(59, 45, 2, 2), QRect(16, 16, 16, 16)})
        for (const int block : {1, 8, 12, 16, 72, 200})
            EXPECT_EQ(pixelated(image, area, block), expected(image, area, block))
                << area.width() << " x " << area.height() << " by " << block;
}

TEST(PixelationTest, addsUpSquaresOfAnySize)
{
    QImage white(700, 1200, QImage::Format_RGB32);
    white.fill(Qt::white);
    EXPECT_EQ(pixelated(white, white.rect(), 600), white);
}

TEST(PixelationTest, keepsItsGridWhileTheAreaMoves)
{
    const QImage image = noise({200, 150});
    const QRect one(20, 30, 90, 60), other(33, 41, 90, 60);
    const QImage first = pixelated(image, one, 12), second = pixelated(image, other, 12);
    const QRect squares(36, 48, 72, 36); // Whole ones in both.
    EXPECT_EQ(first.copy(squares.translated(-one.topLeft())),
        second.copy(squares.translated(-other.topLeft())));
}
