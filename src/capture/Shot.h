// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QRectF>
#include <QString>

#include <optional>

/// One captured image as it is handed from capture to every later stage. Copies share the pixels.
struct Shot {
    QImage image; ///< At full device resolution.
    double scale = 1; ///< Device pixels per point.
    QString app; ///< The program it shows, "Screen" for a whole screen; may be empty.
    std::optional<QRectF> area; ///< Where it was: global points, y up from the primary's foot.
};
