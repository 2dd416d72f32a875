// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/DrawnShadow.h"

#include "base/Blend.h"

#include <QMargins>
#include <QRect>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

/// Coverage, 0 to 255, at a fraction of the full resolution: a blurred picture holds no more
/// detail.
struct Mask {
    int width;
    int height;
    std::vector<std::uint8_t> values;

    Mask(int w, int h)
        : width(w)
        , height(h)
        , values(std::size_t(w) * std::size_t(h))
    {
    }
    std::uint8_t* row(int y) { return values.data() + std::size_t(y) * std::size_t(width); }
    const std::uint8_t* row(int y) const
    {
        return values.data() + std::size_t(y) * std::size_t(width);
    }
};

std::uint32_t alphaOf(const Bitmap& picture, int x, int y)
{
    return picture.format() == PixelFormat::Rgb32 ? 255 : picture.row(y)[x] >> 24;
}

/// The window's alpha where it falls, each cell sampled in its middle.
Mask coverage(const Bitmap& window, QSize canvas, QPoint position, int cell)
{
    Mask mask((canvas.width() + cell - 1) / cell, (canvas.height() + cell - 1) / cell);
    const QRect inside({}, window.size());
    for (int y = 0; y < mask.height; ++y)
        for (int x = 0; x < mask.width; ++x) {
            const QPoint at = QPoint(x * cell + cell / 2, y * cell + cell / 2) - position;
            if (inside.contains(at))
                mask.row(y)[x] = std::uint8_t(alphaOf(window, at.x(), at.y()));
        }
    return mask;
}

/// Mean over 2 radius + 1 neighbours by a running sum; beyond the ends there is nothing.
void boxBlurLine(
    std::uint8_t* line, int count, std::ptrdiff_t step, int radius, std::vector<std::uint8_t>& copy)
{
    for (int i = 0; i < count; ++i)
        copy[std::size_t(i)] = line[i * step];
    const int window = 2 * radius + 1;
    int sum = 0;
    for (int i = 0; i < std::min(radius, count); ++i)
        sum += copy[std::size_t(i)];
    for (int i = 0; i < count; ++i) {
        if (i + radius < count)
            sum += copy[std::size_t(i + radius)];
        if (i - radius - 1 >= 0)
            sum -= copy[std::size_t(i - radius - 1)];
        line[i * step] = std::uint8_t(sum / window);
    }
}

/// Three box blurs come within 3 % of a Gaussian; for their radius see P. Kovesi, "Fast Almost-
/// Gaussian Filtering", 2010: 12 sigma² = 3 ((2r + 1)² − 1).
void blur(Mask& mask, double sigma)
{
    const int radius = std::max(1, int(std::lround((std::sqrt(4 * sigma * sigma + 1) - 1) / 2)));
    std::vector<std::uint8_t> copy(std::size_t(std::max(mask.width, mask.height)));
    for (int pass = 0; pass < 3; ++pass) {
        for (int y = 0; y < mask.height; ++y)
            boxBlurLine(mask.row(y), mask.width, 1, radius, copy);
        for (int x = 0; x < mask.width; ++x)
            boxBlurLine(mask.row(0) + x, mask.height, mask.width, radius, copy);
    }
}

/// Bilinear between the middles of cells, in 1/256 of a cell.
std::uint32_t sample(const Mask& mask, int x, int y, int cell)
{
    const auto place = [cell](int at, int count) {
        const int fine = std::clamp(((2 * at + 1) * 256 / cell - 256) / 2, 0, (count - 1) * 256);
        return std::pair(fine / 256, std::uint32_t(fine % 256));
    };
    const auto [x0, fx] = place(x, mask.width);
    const auto [y0, fy] = place(y, mask.height);
    const int x1 = std::min(x0 + 1, mask.width - 1), y1 = std::min(y0 + 1, mask.height - 1);
    const std::uint32_t top = mask.row(y0)[x0] * (256 - fx) + mask.row(y0)[x1] * fx;
    const std::uint32_t bottom = mask.row(y1)[x0] * (256 - fx) + mask.row(y1)[x1] * fx;
    return (top * (256 - fy) + bottom * fy) >> 16;
}

} // namespace

Bitmap withDrawnShadow(const Bitmap& window, double scale, const ShadowStyle& style)
{
    const int reach = int(std::ceil(style.blur * scale));
    const int fall = int(std::lround(style.offset * scale));
    const QMargins margins(reach, std::max(0, reach - fall), reach, reach + fall);
    const QSize canvas = window.size().grownBy(margins);
    const QPoint position(margins.left(), margins.top());

    const double sigma = style.blur * scale / 2;
    const int cell = std::max(1, int(sigma / 3));
    Mask shadow = coverage(window, canvas, position + QPoint(0, fall), cell);
    blur(shadow, sigma / cell);

    const auto opacity = std::uint32_t(std::lround(style.opacity * 256));
    const QRect inside(position, window.size());
    const std::uint32_t opaque = window.format() == PixelFormat::Rgb32 ? 0xff000000 : 0;
    Bitmap result(canvas, PixelFormat::Argb32Premultiplied);
    for (int y = 0; y < canvas.height(); ++y) {
        std::uint32_t* row = result.row(y);
        const bool crossesWindow = y >= inside.top() && y <= inside.bottom();
        for (int x = 0; x < canvas.width(); ++x) {
            std::uint32_t above = 0;
            if (crossesWindow && x >= inside.left() && x <= inside.right())
                above = window.row(y - inside.top())[x - inside.left()] | opaque;
            row[x] = above >= 0xff000000
                ? above
                : blendOver(above, (sample(shadow, x, y, cell) * opacity >> 8) << 24);
        }
    }
    return result;
}
