// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/Glow.h"

#include "editor/LaidText.h"

#include <QCache>
#include <QImage>
#include <QPainter>

#include <array>
#include <cmath>

namespace {

/// One byte per pixel.
struct Mask {
    int width;
    int height;
    std::vector<uchar> values = std::vector<uchar>(std::size_t(width) * std::size_t(height));
};

/// The average of 2 × radius + 1 values around each, as if there were zeros around them all.
void blurLine(const uchar* in, uchar* out, int count, int step, int radius)
{
    const auto window = unsigned(2 * radius + 1);
    unsigned sum = 0;
    for (int at = 0; at < std::min(radius, count); ++at)
        sum += in[qsizetype(at) * step];
    for (int at = 0; at < count; ++at) {
        if (at + radius < count)
            sum += in[qsizetype(at + radius) * step];
        out[qsizetype(at) * step] = uchar((sum + window / 2) / window);
        if (at >= radius)
            sum -= in[qsizetype(at - radius) * step];
    }
}

/// Nearly Gaussian, of a variance of radius × (radius + 1).
void blur(Mask& mask, int radius)
{
    std::vector<uchar> other(mask.values.size());
    for (int pass = 0; pass < 3; ++pass) {
        for (int y = 0; y < mask.height; ++y)
            blurLine(&mask.values[std::size_t(y) * std::size_t(mask.width)],
                &other[std::size_t(y) * std::size_t(mask.width)], mask.width, 1, radius);
        for (int x = 0; x < mask.width; ++x)
            blurLine(&other[std::size_t(x)], &mask.values[std::size_t(x)], mask.height, mask.width,
                radius);
    }
}

/// The colour wherever the mask is, as dense as if it were painted twice.
QImage colored(const Mask& mask, const QColor& color)
{
    std::array<QRgb, 256> table {};
    for (int value = 0; value < 256; ++value) {
        const double left = 1 - value / 255. * color.alphaF();
        const int alpha = qRound(255 * (1 - left * left));
        table[std::size_t(value)]
            = qPremultiply(qRgba(color.red(), color.green(), color.blue(), alpha));
    }
    QImage image(mask.width, mask.height, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < mask.height; ++y) {
        auto* const out = reinterpret_cast<QRgb*>(image.scanLine(y));
        const uchar* const in = &mask.values[std::size_t(y) * std::size_t(mask.width)];
        for (int x = 0; x < mask.width; ++x)
            out[x] = table[in[x]];
    }
    return image;
}

struct Light {
    QImage image;
    QRectF place; ///< In the units of the text.
};

/// @param sigma of the blur in pixels.
/// @param scale pixels per unit of the text.
Light lightOf(const QPainterPath& shape, const QColor& color, double sigma, double scale)
{
    // A wide blur has no detail: it needs few pixels.
    const double reduction = std::max(1., std::floor(sigma / 3));
    sigma /= reduction;
    scale /= reduction;
    const int radius = std::max(1, qRound((std::sqrt(1 + 4 * sigma * sigma) - 1) / 2));
    const double margin = (3 * radius + 2) / scale;
    const QRectF wanted = shape.boundingRect().adjusted(-margin, -margin, margin, margin);
    QImage drawn(
        QSize(int(std::ceil(wanted.width() * scale)), int(std::ceil(wanted.height() * scale))),
        QImage::Format_Alpha8);
    drawn.fill(0);
    {
        QPainter painter(&drawn);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(scale, scale);
        painter.translate(-wanted.topLeft());
        painter.fillPath(shape, Qt::black);
    }
    Mask mask {drawn.width(), drawn.height()};
    for (int y = 0; y < mask.height; ++y)
        std::copy_n(
            drawn.constScanLine(y), mask.width, mask.values.begin() + qsizetype(y) * mask.width);
    blur(mask, radius);
    return {colored(mask, color), QRectF(wanted.topLeft(), QSizeF(drawn.size()) / scale)};
}

Light cachedLight(const LaidText& text, const QColor& color, double sigma, double scale)
{
    constexpr int mostBytes = 32 << 20;
    static QCache<QString, Light> cache(mostBytes);
    const QString key = text.key() + color.name(QColor::HexArgb) + QString::number(sigma, 'g', 9)
        + QChar(u'/') + QString::number(scale, 'g', 9);
    if (const Light* const kept = cache.object(key))
        return *kept;
    const Light light = lightOf(text.outline(), color, sigma, scale);
    cache.insert(
        key, new Light(light), int(std::min<qsizetype>(light.image.sizeInBytes(), mostBytes)));
    return light;
}

} // namespace

void drawGlow(QPainter& painter, const LaidText& text, const QColor& color, double radius)
{
    if (text.outline().isEmpty())
        return;
    const QTransform device = painter.deviceTransform();
    const double scale = std::sqrt(std::abs(device.determinant()));
    if (scale <= 0)
        return;
    const Light light = cachedLight(text, color, radius / 2 * scale, scale);
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(light.place, light.image);
    painter.restore();
}
