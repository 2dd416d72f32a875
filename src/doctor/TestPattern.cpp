// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "doctor/TestPattern.h"

#include "base/Bitmap.h"

#include <algorithm>
#include <random>

namespace {

constexpr int bands = 4;

QRgb pixelOf(int x, int y, std::mt19937& chance)
{
    const int shade = x * 255 / (TestPattern::size.width() - 1);
    switch (y * bands / TestPattern::size.height()) {
    case 0: // A blurred or shifted picture shows in lines of one pixel.
        return (x + y) % 2 ? qRgb(255, 255, 255) : qRgb(0, 0, 0);
    case 1: // Fewer shades, and colours that changed places.
        return y % 3 == 0 ? qRgb(shade, 0, 0) : y % 3 == 1 ? qRgb(0, shade, 0) : qRgb(0, 0, shade);
    case 2:
        return qRgb(shade, shade, shade);
    default:
        return 0xff000000 | (chance() & 0xffffff);
    }
}

int difference(QRgb a, QRgb b)
{
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
        std::abs(qBlue(a) - qBlue(b))});
}

} // namespace

QImage TestPattern::draw()
{
    std::mt19937 chance(7); // Always the same, on every machine.
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, pixelOf(x, y, chance));
    return image;
}

Result<PatternComparison> TestPattern::compare(const QImage& drawn, RowSource& captured)
{
    PatternComparison result {drawn.width() * drawn.height()};
    if (captured.size() != drawn.size()) {
        result.wrong = result.pixels;
        result.largestDifference = 255;
        return result;
    }
    const auto bitmap = Bitmap::read(captured);
    if (!bitmap)
        return bitmap.error();
    result.isBlack = true;
    for (int y = 0; y < drawn.height(); ++y) {
        const std::uint32_t* row = bitmap->row(y);
        for (int x = 0; x < drawn.width(); ++x) {
            const int difference = ::difference(row[x], drawn.pixel(x, y));
            result.wrong += difference != 0;
            result.largestDifference = std::max(result.largestDifference, difference);
            result.isBlack = result.isBlack && (row[x] & 0xffffff) == 0;
        }
    }
    return result;
}
