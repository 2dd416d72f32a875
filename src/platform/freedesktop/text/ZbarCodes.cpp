// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/text/Codes.h"

#include <zbar.h>

#include <algorithm>
#include <cstring>

namespace {

/// Kinds with a check of their content. Others are found in any striped picture.
constexpr zbar::zbar_symbol_type_t kinds[] {
    zbar::ZBAR_QRCODE, zbar::ZBAR_EAN13, zbar::ZBAR_UPCA, zbar::ZBAR_CODE128};

QRect boxOf(const zbar::Symbol& symbol)
{
    QRect box;
    for (int i = 0; i < symbol.get_location_size(); ++i)
        box |= QRect(symbol.get_location_x(unsigned(i)), symbol.get_location_y(unsigned(i)), 1, 1);
    return box;
}

/// As the library reads it: rows without anything between them.
QByteArray pixelsOf(const QImage& grey)
{
    QByteArray pixels;
    pixels.reserve(qsizetype(grey.width()) * grey.height());
    for (int y = 0; y < grey.height(); ++y)
        pixels.append(reinterpret_cast<const char*>(grey.constScanLine(y)), grey.width());
    return pixels;
}

} // namespace

QList<Code> readCodes(const QImage& grey)
{
    zbar::ImageScanner scanner;
    scanner.set_config(zbar::ZBAR_NONE, zbar::ZBAR_CFG_ENABLE, 0);
    for (const auto kind : kinds)
        scanner.set_config(kind, zbar::ZBAR_CFG_ENABLE, 1);
    scanner.set_config(zbar::ZBAR_NONE, zbar::ZBAR_CFG_TEST_INVERTED, 1);

    const QByteArray pixels = pixelsOf(grey);
    zbar::Image image(unsigned(grey.width()), unsigned(grey.height()), "Y800", pixels.constData(),
        static_cast<unsigned long>(pixels.size()));
    scanner.scan(image);
    QList<Code> codes;
    for (auto symbol = image.symbol_begin(); symbol != image.symbol_end(); ++symbol)
        codes << Code {QString::fromStdString(symbol->get_data()), boxOf(*symbol)};
    std::sort(codes.begin(), codes.end(),
        [](const Code& a, const Code& b) { return a.box.top() < b.box.top(); });
    return codes;
}
