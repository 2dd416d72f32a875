// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QRect>
#include <QString>

/// Where the heads-up display puts what it shows, and what its labels say. Rectangles are device
/// pixels of one screen, y down.
namespace HudLayout {

/// A length in points as whole device pixels.
int pixels(double points, double scale);

inline constexpr int patchSide = 15; ///< Pixels of the picture that the magnifier shows each way.

/// Device pixels that one magnified pixel takes each way: 8 points.
int blockSide(double scale);

/// The magnifier, below and to the right of the pointer, on the other side where the screen ends.
QRect lens(QPoint pointer, QSize screen, double scale);

QString sizeText(QSize selection);
QString pixelText(QPoint pixel, QRgb colour);
QString hintText(const QString& purpose);

} // namespace HudLayout
