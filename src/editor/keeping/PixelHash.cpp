// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/keeping/PixelHash.h"

#include <algorithm>
#include <array>
#include <memory>
#include <vector>

#include <xxhash.h>

using namespace Qt::StringLiterals;

namespace {

constexpr std::uint32_t opaque = 0xff000000;
constexpr int digits = 16; // Of a half.

bool isOpaque(const std::uint32_t* row, std::size_t width)
{
    std::uint32_t all = opaque;
    for (std::size_t x = 0; x < width; ++x)
        all &= row[x];
    return all == opaque;
}

/// A pixel as it is drawn: the colours of a premultiplied one are never brighter than its alpha, in
/// a file at the latest.
std::uint32_t canonical(std::uint32_t pixel, bool hasAlpha)
{
    if (!hasAlpha)
        return pixel | opaque;
    const auto alpha = pixel >> 24;
    const auto colour
        = [&](int shift) { return std::min((pixel >> shift) & 0xff, alpha) << shift; };
    return alpha << 24 | colour(16) | colour(8) | colour(0);
}

} // namespace

PixelHash PixelHash::of(const QImage& image)
{
    const bool hasAlpha = image.hasAlphaChannel();
    const QImage pixels = image.convertToFormat(
        hasAlpha ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    const std::unique_ptr<XXH3_state_t, decltype(&XXH3_freeState)> state(
        XXH3_createState(), XXH3_freeState);
    XXH3_128bits_reset(state.get());
    const std::array<std::uint32_t, 2> size {
        std::uint32_t(pixels.width()), std::uint32_t(pixels.height())};
    XXH3_128bits_update(state.get(), size.data(), sizeof size);
    std::vector<std::uint32_t> changed(size[0]);
    for (int y = 0; y < pixels.height(); ++y) {
        const auto* row = reinterpret_cast<const std::uint32_t*>(pixels.constScanLine(y));
        if (!isOpaque(row, changed.size())) {
            std::transform(row, row + changed.size(), changed.begin(),
                [&](std::uint32_t pixel) { return canonical(pixel, hasAlpha); });
            row = changed.data();
        }
        XXH3_128bits_update(state.get(), row, changed.size() * sizeof *row);
    }
    const auto digest = XXH3_128bits_digest(state.get());
    return {digest.high64, digest.low64};
}

std::optional<PixelHash> PixelHash::fromText(QStringView text)
{
    bool isHigh = false, isLow = false;
    PixelHash hash;
    if (text.size() == 2 * digits)
        hash = {
            text.first(digits).toULongLong(&isHigh, 16), text.last(digits).toULongLong(&isLow, 16)};
    if (!isHigh || !isLow || hash.text() != text) // Neither signs nor capitals.
        return std::nullopt;
    return hash;
}

QString PixelHash::text() const
{
    return u"%1%2"_s.arg(high, digits, 16, QChar(u'0')).arg(low, digits, 16, QChar(u'0'));
}
