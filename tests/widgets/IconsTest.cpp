// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/Icons.h"

#include "base/CaptureKind.h"
#include "widgets/IconFiles.h"

#include <QDir>
#include <QImage>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Whether something is seen, and all of it in this colour, but for rounding.
bool isDrawnIn(const QColor& colour, const QImage& image)
{
    bool drawn = false;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (const QColor pixel = image.pixelColor(x, y); pixel.alpha() > 128) {
                drawn = true;
                if (std::abs(pixel.red() - colour.red()) > 2
                    || std::abs(pixel.blue() - colour.blue()) > 2)
                    return false;
            }
    return drawn;
}

} // namespace

TEST(IconsTest, drawsEverySymbolInTheColourAndSizeAskedFor)
{
    for (const QString& symbol : IconFiles::symbols()) {
        SCOPED_TRACE(symbol.toStdString());
        const QPixmap pixmap = Icons::pixmap(symbol, 20, QColor(200, 30, 60), 2);
        EXPECT_EQ(pixmap.size(), QSize(40, 40));
        EXPECT_TRUE(isDrawnIn(QColor(200, 30, 60), pixmap.toImage()));
    }
    for (const auto& kind : captureKinds)
        EXPECT_TRUE(Icons::has(QString(kind.symbol))) << QString(kind.symbol).toStdString();
}

TEST(IconsTest, shipsNoFileThatNobodyUses)
{
    Icons::pixmap(u"camera"_s, 20, Qt::black, 1); // Loads them.
    QStringList used;
    for (const QString& symbol : IconFiles::symbols())
        used << IconFiles::nameOf(symbol) + u".svg"_s;
    for (const QString& file : QDir(u":/icons"_s).entryList())
        EXPECT_TRUE(used.contains(file)) << file.toStdString();
}
