// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/text/PageImage.h"

#include "platform/freedesktop/text/Contrast.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <vector>

namespace {

/// Letters at the very edge are not found.
constexpr int pageMargin = 16;

/// Which two pixels a pixel of the larger picture lies between, and how near to the second, of 256.
struct Between {
    int first, second, nearness;
};

std::vector<Between> between(int pixels, int enlargedPixels, double factor)
{
    std::vector<Between> all;
    for (int i = 0; i < enlargedPixels; ++i) {
        const double place = std::clamp((i + 0.5) / factor - 0.5, 0.0, pixels - 1.0);
        const int first = int(place);
        all.push_back({first, std::min(first + 1, pixels - 1), int((place - first) * 256)});
    }
    return all;
}

QImage withMargin(const QImage& grey, int margin)
{
    QImage page(grey.size() + QSize(2 * margin, 2 * margin), QImage::Format_Grayscale8);
    page.fill(Qt::white);
    for (int y = 0; y < grey.height(); ++y)
        std::memcpy(
            page.scanLine(y + margin) + margin, grey.constScanLine(y), std::size_t(grey.width()));
    return page;
}

} // namespace

QImage greyOf(const QImage& picture)
{
    if (!picture.hasAlphaChannel())
        return picture.convertToFormat(QImage::Format_Grayscale8);
    QImage opaque(picture.size(), QImage::Format_RGB32);
    opaque.fill(Qt::white);
    QPainter(&opaque).drawImage(opaque.rect(), picture);
    return opaque.convertToFormat(QImage::Format_Grayscale8);
}

QImage enlarged(const QImage& grey, double factor)
{
    const QSize size(std::max(1, int(std::lround(grey.width() * factor))),
        std::max(1, int(std::lround(grey.height() * factor))));
    const auto columns = between(grey.width(), size.width(), factor);
    const auto rows = between(grey.height(), size.height(), factor);
    QImage larger(size, QImage::Format_Grayscale8);
    std::vector<int> row(std::size_t(grey.width())); // Of 256 times the greys.
    for (int y = 0; y < size.height(); ++y) {
        const auto& place = rows[std::size_t(y)];
        const uchar* above = grey.constScanLine(place.first);
        const uchar* below = grey.constScanLine(place.second);
        for (std::size_t x = 0; x < row.size(); ++x)
            row[x] = above[x] * 256 + (below[x] - above[x]) * place.nearness;
        uchar* to = larger.scanLine(y);
        for (const auto& [first, second, nearness] : columns) {
            const int left = row[std::size_t(first)], right = row[std::size_t(second)];
            *to++ = uchar((left * 256 + (right - left) * nearness) >> 16);
        }
    }
    return larger;
}

PageImage PageImage::of(const QImage& grey, double scale)
{
    const double most = double(longestSide) / std::max(grey.width(), grey.height());
    const double factor = std::clamp(bestScale / scale, 1.0, std::max(1.0, most));
    const QImage contrasted = blackOnWhite(grey, scale);
    return {withMargin(factor > 1 ? enlarged(contrasted, factor) : contrasted, pageMargin), factor,
        pageMargin};
}

QRect PageImage::inPicture(QRect box) const
{
    const auto back = [&](int place) { return (place - margin) / factor; };
    return QRectF(QPointF(back(box.left()), back(box.top())),
        QPointF(back(box.right() + 1), back(box.bottom() + 1)))
        .toAlignedRect();
}
