// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QImage>
#include <QRegion>

/// A dashed line that lies on whole pixels, in device pixels. It begins with a dash at its left or
/// upper end.
struct DashedLine {
    QRect rect; ///< As wide as the line is.
    Qt::Orientation orientation = Qt::Horizontal;
    int on = 1, off = 1; ///< Lengths of a dash and of a gap.
};

/// Blends the dashes onto an RGB32 picture, within the region.
void drawDashes(QImage& target, const QRegion& region, const DashedLine& line, QColor colour);
