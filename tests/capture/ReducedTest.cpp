// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "capture/Reduced.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>

namespace {

constexpr QSize card(416, 208);

QImage filled(QSize size, QRgb colour, QImage::Format format = QImage::Format_RGB32)
{
    QImage image(size, format);
    image.fill(colour);
    return image;
}

struct Difference {
    int most = 0; ///< Of any channel of any pixel.
    double mean = 0;
};

Difference between(const QImage& a, const QImage& b)
{
    int most = 0;
    double sum = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y), q = b.pixel(x, y);
            for (const int difference : {qRed(p) - qRed(q), qGreen(p) - qGreen(q),
                     qBlue(p) - qBlue(q), qAlpha(p) - qAlpha(q)}) {
                most = std::max(most, std::abs(difference));
                sum += std::abs(difference);
            }
        }
    return {most, sum / 4 / a.width() / a.height()};
}

} // namespace

TEST(ReducedTest, keepsAPlainColourExactly)
{
    for (const QSize size : {QSize(3840, 2160), QSize(3841, 2161), QSize(20000, 30), QSize(1, 9000),
             QSize(417, 5), QSize(7, 7)})
        for (const QRgb colour : {0xff000000, 0xffffffff, 0xff01807f}) {
            const QImage small = reduced(filled(size, colour), card);
            EXPECT_EQ(small.format(), QImage::Format_RGB32);
            EXPECT_EQ(small, filled(small.size(), colour)) << size.width() << 'x' << size.height();
        }
}

TEST(ReducedTest, isWhatTheToolkitMakesOfThePicture)
{
    QImage image({1931, 1087}, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgb(x / 8, y / 5, 128 + (x - y) / 20));
    const auto difference = [&] {
        return between(reduced(image, card),
            image.scaled(card, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    };
    EXPECT_LE(difference().most, 1);
    for (int y = 0; y < image.height(); ++y) // Lines as thin as letters.
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, x % 7 == 0 || y % 11 == 3 ? 0xff000000 : 0xffffffff);
    EXPECT_LE(difference().mean, 12);
}

TEST(ReducedTest, keepsAlphaPremultipliedAndDropsWhatIsNone)
{
    QImage half = filled({2000, 1000}, qRgba(200, 100, 0, 255), QImage::Format_ARGB32);
    for (int y = 0; y < half.height(); ++y)
        for (int x = 1000; x < half.width(); ++x)
            half.setPixel(x, y, qRgba(255, 255, 255, 0));
    const QImage small = reduced(half, {20, 10});
    EXPECT_EQ(small.format(), QImage::Format_ARGB32_Premultiplied);
    EXPECT_EQ(small.pixel(0, 5), qRgba(200, 100, 0, 255));
    EXPECT_EQ(small.pixel(19, 5), 0U) << "colour of what cannot be seen";

    QImage unused = filled({2000, 1000}, 0xff336699);
    for (int x = 0; x < unused.width(); ++x) // The top byte of RGB32 may hold anything.
        reinterpret_cast<QRgb*>(unused.scanLine(3))[x] = 0x00336699;
    EXPECT_EQ(reduced(unused, card).format(), QImage::Format_RGB32);
    EXPECT_EQ(reduced(unused, card), filled(reduced(unused, card).size(), 0xff336699));
}
