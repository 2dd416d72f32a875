// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/kinds/Sticker.h"

#include "editor/EmojiArt.h"
#include "editor/Geometry.h"

#include <QPainter>

namespace {

constexpr double leastSide = 3; // Pixels; nothing as small is drawn.

double sideOf(const Annotation& it)
{
    const QRectF rect = spanned(it.a, it.b);
    return std::min(rect.width(), rect.height());
}

/// From the sticker's own coordinates, with its centre as origin, to the picture.
QTransform placement(const Annotation& it)
{
    const QPointF centre = spanned(it.a, it.b).center();
    return QTransform::fromTranslate(centre.x(), centre.y()).rotate(it.rotation);
}

} // namespace

void Sticker::draw(QPainter& painter, const Annotation& it, const QImage&) const
{
    const double side = sideOf(it);
    if (side <= leastSide)
        return;
    painter.save();
    painter.setTransform(placement(it), true);
    EmojiArt::draw(painter, it.emoji, side, it.color);
    painter.restore();
}

QRectF Sticker::ink(const Annotation& it) const
{
    return grown(placement(it).mapRect(EmojiArt::rect(it.emoji, sideOf(it))), 2);
}

void Sticker::begin(Annotation& it, const ToolSettings& settings, int, double lot) const
{
    constexpr double mostDegrees = 10;
    it.emoji = settings.stickerEmoji;
    it.fontSize = settings.fontSize;
    it.rotation = (2 * lot - 1) * mostDegrees;
}

bool Sticker::finish(Annotation& it) const
{
    if (!Box::finish(it)) { // A click: of the usual size.
        const double half = it.fontSize * 2.6 / 2;
        it.b = it.a + QPointF(half, half);
        it.a -= QPointF(half, half);
    }
    return true;
}
