// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "overlay/Dashes.h"

#include "base/Blend.h"

void drawDashes(QImage& target, const QRegion& region, const DashedLine& line, QColor colour)
{
    const QRgb above = qPremultiply(colour.rgba());
    const bool across = line.orientation == Qt::Horizontal;
    const int period = line.on + line.off;
    for (const QRect& rect : region& line.rect& target.rect())
        for (int y = rect.top(); y <= rect.bottom(); ++y) {
            auto* const row = reinterpret_cast<QRgb*>(target.scanLine(y));
            for (int x = rect.left(); x <= rect.right(); ++x) {
                const int way = across ? x - line.rect.left() : y - line.rect.top();
                if (way % period < line.on)
                    row[x] = blendOver(above, row[x]);
            }
        }
}
