// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

#include <cstdint>
#include <iterator>
#include <string_view>

/// Codes that say something known, with the empty room around that they need.
namespace SampleCodes {

constexpr int quiet = 4; ///< In modules.

inline const QString qrText = QStringLiteral("https://example.org/a?b=1");

/// @param module pixels of the smallest square.
inline QImage qrCode(int module, bool dark = false)
{
    constexpr std::uint32_t rows[] {0x1fc557f, 0x1054b41, 0x174115d, 0x175dc5d, 0x174815d,
        0x105be41, 0x1fd557f, 0x000e500, 0x1f7a8aa, 0x01258a2, 0x1074f2b, 0x1481761, 0x0cfded7,
        0x151812a, 0x165727b, 0x17327f1, 0x17ef9f4, 0x0011f18, 0x1fd8d57, 0x104151b, 0x175cff4,
        0x17572df, 0x1750a0d, 0x10501b9, 0x1fd68ff};
    constexpr int side = int(std::size(rows));
    QImage image(side + 2 * quiet, side + 2 * quiet, QImage::Format_RGB32);
    image.fill(dark ? Qt::black : Qt::white);
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x)
            if (rows[y] >> (side - 1 - x) & 1)
                image.setPixelColor(x + quiet, y + quiet, dark ? Qt::white : Qt::black);
    return image.scaled(image.size() * module);
}

inline const QString barText = QStringLiteral("4006381333931");

inline QImage barCode(int module)
{
    constexpr std::string_view bars
        = "1010001101010011101011110111101000100101100110101010000101000"
          "0101000010111010010000101100110101";
    QImage image(int(bars.size()) + 6 * quiet, 1, QImage::Format_RGB32);
    image.fill(Qt::white);
    for (int x = 0; x < int(bars.size()); ++x)
        if (bars[std::size_t(x)] == '1')
            image.setPixelColor(x + 3 * quiet, 0, Qt::black);
    return image.scaled(image.width() * module, 60);
}

} // namespace SampleCodes
