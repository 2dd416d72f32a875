// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QRectF>

#include <vector>

/// One thing that an effect shows at one moment. Lengths are points, y down.
struct FxSprite {
    enum class Shape {
        Square, ///< On whole pixels, as large areas of one colour are cheap then.
        Ground, ///< Likewise, where nothing lies below: half the work.
        Slip, ///< Of paper, turned.
        Disc, ///< Likewise.
        Curl, ///< A wavy strip along its width.
        Star, ///< With four long rays.
        Glow, ///< Fades out towards its rim.
        Ring,
        Shade, ///< A soft shadow around an empty box.
        Picture, ///< What was captured.
    };

    QRectF area() const; ///< Before it is turned.

    Shape shape = Shape::Square;
    QPointF centre;
    QSizeF size;
    double turn = 0; ///< Radians, clockwise.
    QRgb colour = 0xffffffff; ///< Not premultiplied; of a picture only the alpha counts.
    double thickness = 0; ///< Of what is drawn as a line.

    /// Nothing of it is drawn outside.
    QRectF box() const;
};

using FxSprites = std::vector<FxSprite>;

/// A colour with its alpha multiplied, 0 to 1.
QRgb faded(QRgb colour, double opacity);
