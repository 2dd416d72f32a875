// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "fun/FxSprite.h"

#include <QHash>
#include <QImage>
#include <QPolygonF>

#include <vector>

class QPainter;

/// Draws sprites. Keeps what it needs more than once: the picture at several sizes, glows.
class FxPainter final {
public:
    /// @param picture what sprites of that shape show; may be null
    explicit FxPainter(const QImage& picture);

    /// On a device that is transparent, and whose pixel ratio says how large a point is.
    void paint(QPainter& painter, const FxSprites& sprites);

private:
    void paint(QPainter& painter, const FxSprite& sprite);
    void paintPicture(QPainter& painter, const FxSprite& sprite);
    const QImage& glow(QRgb colour); ///< Of an opaque colour.

    std::vector<QImage> m_pictures; ///< Each half as large as the one before.
    QHash<QRgb, QImage> m_glows;
    QPolygonF m_star; ///< Of radius 1.
};
