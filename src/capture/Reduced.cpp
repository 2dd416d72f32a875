// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "capture/Reduced.h"

#include "capture/Pixels.h"

#include <algorithm>
#include <cstring>
#include <functional>
#include <numeric>
#include <vector>

namespace {

/// Boxes reduce a picture to this many times what is wanted, and the toolkit's smooth scaling,
/// which takes its time for each pixel that it looks at, does the rest.
constexpr int finer = 2;

/// More pixels in a box than 256, and a sum of theirs would not fit 16 bits.
constexpr int longestSide = 16;

/// What pixels add up to, two channels of 16 bits in each number.
struct Sums {
    std::uint32_t redBlue = 0;
    std::uint32_t alphaGreen = 0;

    Sums operator+(const Sums& other) const
    {
        return {redBlue + other.redBlue, alphaGreen + other.alphaGreen};
    }
};

constexpr std::uint32_t everyOther = 0x00ff00ff;

Sums sumOf(std::uint32_t pixel)
{
    return {pixel & everyOther, pixel >> 8 & everyOther};
}

/// Adds up what lies in the same columns of some rows, four columns at once.
void sumDown(const std::uint32_t* rows, qsizetype pitch, int count, std::vector<Sums>& columns)
{
    using Four [[gnu::vector_size(16)]] = std::uint32_t;
    std::size_t x = 0;
    for (; x + 4 <= columns.size(); x += 4) {
        Four redBlue {}, alphaGreen {};
        for (int y = 0; y < count; ++y) {
            Four pixels;
            std::memcpy(&pixels, rows + y * pitch + x, sizeof pixels);
            redBlue += pixels & everyOther;
            alphaGreen += pixels >> 8 & everyOther;
        }
        for (std::size_t i = 0; i < 4; ++i)
            columns[x + i] = {redBlue[i], alphaGreen[i]};
    }
    for (; x < columns.size(); ++x) {
        columns[x] = {};
        for (int y = 0; y < count; ++y)
            columns[x] = columns[x] + sumOf(rows[y * pitch + x]);
    }
}

/// Makes means of sums of as many pixels.
class Mean final {
public:
    explicit Mean(std::uint32_t count)
        : m_half(count / 2)
        , m_reciprocal(((1U << 24) + count - 1) / count) // Exact enough for 8 bits.
    {
    }

    std::uint32_t operator()(const Sums& sums) const
    {
        return channel(sums.alphaGreen >> 16) << 24 | channel(sums.redBlue >> 16) << 16
            | channel(sums.alphaGreen & 0xffff) << 8 | channel(sums.redBlue & 0xffff);
    }

private:
    std::uint32_t channel(std::uint32_t sum) const { return (sum + m_half) * m_reciprocal >> 24; }

    std::uint32_t m_half;
    std::uint32_t m_reciprocal;
};

/// The means of the boxes of one row of boxes; the last box may be narrower.
void writeMeans(const std::vector<Sums>& columns, QSize box, std::uint32_t* out)
{
    const auto width = std::size_t(box.width());
    const auto height = std::uint32_t(box.height());
    const auto sumOver = [&columns](std::size_t x, std::size_t end) {
        return std::accumulate(columns.begin() + std::ptrdiff_t(x),
            columns.begin() + std::ptrdiff_t(end), Sums(), std::plus());
    };
    const Mean mean(std::uint32_t(width) * height);
    std::size_t x = 0;
    for (; x + width <= columns.size(); x += width)
        *out++ = mean(sumOver(x, x + width));
    if (x < columns.size())
        *out = Mean(std::uint32_t(columns.size() - x) * height)(sumOver(x, columns.size()));
}

/// Every box of the picture becomes a pixel; those at the right and at the foot may be smaller.
QImage boxMeans(const QImage& image, QSize box)
{
    const int width = image.width(), height = image.height();
    QImage means((width + box.width() - 1) / box.width(),
        (height + box.height() - 1) / box.height(), image.format());
    std::vector<Sums> columns(static_cast<std::size_t>(width));
    for (int y = 0; y < height; y += box.height()) {
        const int rows = std::min(box.height(), height - y);
        sumDown(reinterpret_cast<const std::uint32_t*>(image.constScanLine(y)),
            image.bytesPerLine() / 4, rows, columns);
        writeMeans(columns, {box.width(), rows},
            reinterpret_cast<std::uint32_t*>(means.scanLine(y / box.height())));
    }
    return means;
}

bool isOpaque(const QImage& image)
{
    for (int y = 0; y < image.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        if (std::any_of(row, row + image.width(), [](QRgb pixel) { return qAlpha(pixel) != 255; }))
            return false;
    }
    return true;
}

int boxSide(int length, int wanted)
{
    return std::clamp(length / (wanted * finer), 1, longestSide);
}

} // namespace

QImage reduced(const QImage& image, QSize most)
{
    QSize size = image.size();
    if (size.width() > most.width() || size.height() > most.height())
        size = size.scaled(most, Qt::KeepAspectRatio).expandedTo({1, 1});
    QImage small = inOurFormat(image);
    const QSize box(boxSide(image.width(), size.width()), boxSide(image.height(), size.height()));
    if (box != QSize(1, 1))
        small = boxMeans(small, box);
    small = small.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                .convertToFormat(QImage::Format_ARGB32_Premultiplied);
    return isOpaque(small) ? small.convertToFormat(QImage::Format_RGB32) : small;
}
