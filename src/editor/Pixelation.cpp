// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/Pixelation.h"

#include <cstdint>
#include <cstring>
#include <vector>

namespace {

constexpr int channels = 4;
constexpr int mostRows = 257; // So many bytes add up to no more than 16 bits.

/// Adds rows of bytes, each to the sum of its column. Four at once, and simple enough for the
/// compiler to take many columns at once.
void addRows(std::uint16_t* sums, const uchar* row, qsizetype stride, int rows, int bytes)
{
    for (; rows >= 4; rows -= 4, row += 4 * stride) {
        const uchar *second = row + stride, *third = second + stride, *fourth = third + stride;
        for (int x = 0; x < bytes; ++x)
            sums[x] = std::uint16_t(sums[x] + row[x] + second[x] + third[x] + fourth[x]);
    }
    for (; rows > 0; --rows, row += stride)
        for (int x = 0; x < bytes; ++x)
            sums[x] = std::uint16_t(sums[x] + row[x]);
}

struct Total {
    std::uint32_t channel[channels] = {};
};

/// The squares that lie beside each other, clipped to the area.
class BlockRow final {
public:
    BlockRow(const QImage& image, const QRect& area, int block)
        : m_image(image)
        , m_area(area)
        , m_block(block)
        , m_columns(std::size_t(area.width()) * channels)
        , m_totals(std::size_t((area.right() / block) - (area.left() / block)) + 1)
        , m_line(std::size_t(area.width()))
    {
    }

    /// One line of the squares over the image's rows from y on.
    const std::vector<std::uint32_t>& average(int y, int rows)
    {
        std::fill(m_totals.begin(), m_totals.end(), Total());
        for (int done = 0; done < rows; done += mostRows)
            add(y + done, std::min(mostRows, rows - done));
        forEachBlock([&](Total& total, int from, int width) {
            const auto count = std::uint32_t(width * rows);
            std::uint32_t pixel = 0;
            for (int channel = channels - 1; channel >= 0; --channel)
                pixel = pixel << 8 | (total.channel[channel] + count / 2) / count;
            std::fill_n(m_line.begin() + from, width, pixel);
        });
        return m_line;
    }

private:
    template <typename Visit>
    void forEachBlock(Visit visit)
    {
        int from = 0;
        int width = m_block - m_area.left() % m_block; // The first one may have begun before.
        for (Total& total : m_totals) {
            width = std::min(width, m_area.width() - from);
            visit(total, from, width);
            from += width;
            width = m_block;
        }
    }

    void add(int y, int rows)
    {
        std::fill(m_columns.begin(), m_columns.end(), std::uint16_t(0));
        addRows(m_columns.data(), m_image.constScanLine(y) + qsizetype(m_area.left()) * channels,
            m_image.bytesPerLine(), rows, int(m_columns.size()));
        forEachBlock([this](Total& total, int from, int width) {
            const std::uint16_t* sum = &m_columns[std::size_t(from) * channels];
            for (int x = 0; x < width; ++x, sum += channels)
                for (int channel = 0; channel < channels; ++channel)
                    total.channel[channel] += sum[channel];
        });
    }

    const QImage& m_image;
    QRect m_area;
    int m_block;
    std::vector<std::uint16_t> m_columns; ///< Sums of single channels, some rows high.
    std::vector<Total> m_totals;
    std::vector<std::uint32_t> m_line;
};

} // namespace

QImage pixelated(const QImage& image, const QRect& area, int block)
{
    QImage result(area.size(), image.format());
    uchar* out = result.bits();
    BlockRow blocks(image, area, block);
    for (int y = area.top(); y <= area.bottom();) {
        const int next = std::min((y / block + 1) * block, area.bottom() + 1);
        const auto& line = blocks.average(y, next - y);
        for (; y < next; ++y, out += result.bytesPerLine())
            std::memcpy(out, line.data(), line.size() * sizeof(line[0]));
    }
    return result;
}
