// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/text/Contrast.h"

#include "platform/freedesktop/text/Grounds.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <vector>

namespace {

/// What differs less from its ground is not made black, but as many times darker as this would be.
constexpr int palest = 48;

/// In points: how far around a pixel its text reaches at least.
constexpr double textReach = 8;

/// In points: the smooth edge between two grounds.
constexpr double edgeWidth = 3;

bool isMostlyDark(const QImage& grey)
{
    qint64 dark = 0;
    for (int y = 0; y < grey.height(); ++y)
        dark += std::count_if(grey.constScanLine(y), grey.constScanLine(y) + grey.width(),
            [](uchar each) { return each < 128; });
    return dark * 2 > qint64(grey.width()) * grey.height();
}

/// How much each pixel differs from the ground that it stands on.
class Ink final {
public:
    Ink(const QImage& grey, double scale)
        : m_grey(grey)
        , m_grounds(grey, scale)
        , m_edge(int(edgeWidth * scale))
        , m_elsewhere(isMostlyDark(grey) ? 0 : 255)
    {
    }

    QImage image() const
    {
        QImage ink(m_grey.size(), QImage::Format_Grayscale8);
        for (int y = 0; y < ink.height(); ++y) {
            uchar* row = ink.scanLine(y);
            for (int x = 0; x < ink.width();) {
                const int next = endOfRun(x, y);
                fill(row, x, next, y);
                x = next;
            }
        }
        return ink;
    }

private:
    /// Behind the pixels of the same ground, or of none, from x on.
    int endOfRun(int x, int y) const
    {
        const int ground = m_grounds.at(x, y);
        while (x < m_grey.width() && m_grounds.at(x, y) == ground)
            ++x;
        return x;
    }

    void fill(uchar* row, int first, int end, int y) const
    {
        const int left = first > 0 ? m_grounds.at(first - 1, y) : 0;
        const int right = end < m_grey.width() ? m_grounds.at(end, y) : 0;
        const bool isEdge = left && right && left != right && end - first <= m_edge;
        if (m_grounds.at(first, y) || isEdge) {
            std::fill(row + first, row + end, uchar(0));
            return;
        }
        const int ground = left ? left : right;
        const int grey = ground ? m_grounds.greyOf(ground) : m_elsewhere;
        const uchar* from = m_grey.constScanLine(y);
        for (int x = first; x < end; ++x)
            row[x] = uchar(std::abs(from[x] - grey));
    }

    const QImage& m_grey;
    const Grounds m_grounds;
    const int m_edge;
    const int m_elsewhere; ///< The grey of what stands on no ground, as in a photo.
};

/// Replaces each value of a sequence by the greatest that is at most as far away as said.
class Spreader final {
public:
    explicit Spreader(int reach)
        : m_reach(reach)
    {
    }

    /// @param step between neighbours.
    void spread(uchar* values, int count, qsizetype step)
    {
        // The greatest of each block from its start up to a place, and from a place to its end:
        // any stretch as long as a block is the end of one and the start of the next.
        const int block = 2 * m_reach + 1;
        const int padded = count + 2 * m_reach;
        m_fromStart.assign(std::size_t(padded), 0);
        for (int i = 0; i < count; ++i)
            m_fromStart[std::size_t(i + m_reach)] = values[i * step];
        m_toEnd = m_fromStart;
        for (int i = 1; i < padded; ++i)
            if (i % block != 0)
                keepGreater(m_fromStart, i, i - 1);
        for (int i = padded - 2; i >= 0; --i)
            if (i % block != block - 1)
                keepGreater(m_toEnd, i, i + 1);
        for (int i = 0; i < count; ++i)
            values[i * step]
                = std::max(m_toEnd[std::size_t(i)], m_fromStart[std::size_t(i + 2 * m_reach)]);
    }

private:
    static void keepGreater(std::vector<uchar>& values, int i, int other)
    {
        values[std::size_t(i)] = std::max(values[std::size_t(i)], values[std::size_t(other)]);
    }

    int m_reach;
    std::vector<uchar> m_fromStart, m_toEnd;
};

/// The strongest ink around each pixel.
QImage strongestAround(QImage ink, int reach)
{
    Spreader spreader(reach);
    for (int y = 0; y < ink.height(); ++y)
        spreader.spread(ink.scanLine(y), ink.width(), 1);
    for (int x = 0; x < ink.width(); ++x)
        spreader.spread(ink.bits() + x, ink.height(), ink.bytesPerLine());
    return ink;
}

} // namespace

QImage blackOnWhite(const QImage& grey, double scale)
{
    QImage page = Ink(grey, scale).image();
    const QImage strongest = strongestAround(page, int(std::ceil(textReach * scale)));
    for (int y = 0; y < page.height(); ++y) {
        uchar* row = page.scanLine(y);
        const uchar* most = strongest.constScanLine(y);
        for (int x = 0; x < page.width(); ++x)
            row[x] = uchar(255 - row[x] * 255 / std::max<int>(most[x], palest));
    }
    return page;
}
