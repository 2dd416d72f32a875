// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/text/Grounds.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace {

/// Greys that count as one ground, up and down.
constexpr int tolerance = 5;

/// Pixels side by side in one row.
struct Run {
    int y, first, last;
};

/// Connected pixels of about one grey.
struct Area {
    int grey;
    std::vector<Run> runs {};

    /// Whether text may stand on it, and it is no large letter.
    bool isGround(double scale) const
    {
        int left = std::numeric_limits<int>::max(), right = 0, top = left, bottom = 0;
        qint64 pixels = 0;
        for (const auto& run : runs) {
            left = std::min(left, run.first);
            right = std::max(right, run.last);
            top = std::min(top, run.y);
            bottom = std::max(bottom, run.y);
            pixels += run.last - run.first + 1;
        }
        const double width = (right - left + 1) / scale, height = (bottom - top + 1) / scale;
        const double filled = double(pixels) / (width * height * scale * scale);
        const bool isBar = width >= 1.6 * height || height >= 3 * width;
        const bool isPanel = width >= 96 && height >= 96;
        const bool isWindow = width >= 160 && height >= 160; // Others may cover most of it.
        return width >= 24 && height >= 12 && filled < 1
            && (((isBar || isPanel) && filled >= 0.5) || (isWindow && filled >= 0.1));
    }
};

} // namespace

/// Walks through the areas of a picture, run by run.
class GroundFinder final {
public:
    GroundFinder(Grounds& grounds, const QImage& grey)
        : m_grounds(grounds)
        , m_grey(grey)
    {
    }

    bool isSeen(int x, int y) const { return m_grounds.m_owners[at(x, y)]; }

    /// The area that a pixel belongs to, which counts as seen now.
    const Area& areaAt(int x, int y)
    {
        m_area.grey = m_grey.constScanLine(y)[x];
        m_area.runs.clear();
        m_open.push_back({x, y});
        while (!m_open.empty()) {
            const auto [openX, openY] = m_open.back();
            m_open.pop_back();
            if (!isSeen(openX, openY))
                takeRun(openX, openY);
        }
        return m_area;
    }

    void own(const Area& area)
    {
        auto& greys = m_grounds.m_greys;
        if (greys.size() > std::numeric_limits<quint16>::max())
            return;
        for (const auto& run : area.runs)
            mark(run, quint16(greys.size()));
        greys.push_back(uchar(area.grey));
    }

private:
    struct Pixel {
        int x, y;
    };

    std::size_t at(int x, int y) const
    {
        return std::size_t(y) * std::size_t(m_grey.width()) + std::size_t(x);
    }

    bool belongs(const uchar* row, int x, int y) const
    {
        return std::abs(row[x] - m_area.grey) <= tolerance && !isSeen(x, y);
    }

    void mark(const Run& run, quint16 owner)
    {
        const auto first = m_grounds.m_owners.begin() + qsizetype(at(run.first, run.y));
        std::fill(first, first + (run.last - run.first + 1), owner);
    }

    void takeRun(int x, int y)
    {
        const uchar* row = m_grey.constScanLine(y);
        Run run {y, x, x};
        while (run.first > 0 && belongs(row, run.first - 1, y))
            --run.first;
        while (run.last + 1 < m_grey.width() && belongs(row, run.last + 1, y))
            ++run.last;
        mark(run, Grounds::seen);
        m_area.runs.push_back(run);
        if (y > 0)
            openRuns(run, y - 1);
        if (y + 1 < m_grey.height())
            openRuns(run, y + 1);
    }

    /// Remembers one pixel of each run in a row that touches another one's columns.
    void openRuns(const Run& run, int y)
    {
        const uchar* row = m_grey.constScanLine(y);
        bool isWithin = false;
        for (int x = run.first; x <= run.last; ++x) {
            const bool belongsHere = belongs(row, x, y);
            if (belongsHere && !isWithin)
                m_open.push_back({x, y});
            isWithin = belongsHere;
        }
    }

    Grounds& m_grounds;
    const QImage& m_grey;
    Area m_area {};
    std::vector<Pixel> m_open;
};

Grounds::Grounds(const QImage& grey, double scale)
    : m_width(grey.width())
    , m_owners(std::size_t(grey.width()) * std::size_t(grey.height()))
{
    GroundFinder finder(*this, grey);
    for (int y = 0; y < grey.height(); ++y)
        for (int x = 0; x < grey.width(); ++x)
            if (!finder.isSeen(x, y))
                if (const auto& area = finder.areaAt(x, y); area.isGround(scale))
                    finder.own(area);
}
