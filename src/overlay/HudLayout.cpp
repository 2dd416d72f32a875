// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "overlay/HudLayout.h"

#include "base/Words.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr double blockPoints = 8;
constexpr double pointerGap = 24; // Points between the pointer and the lens, each way.
constexpr double footRoom = 30; // Points that the lens keeps to the foot of the screen.

} // namespace

int HudLayout::pixels(double points, double scale)
{
    return int(std::lround(points * scale));
}

int HudLayout::blockSide(double scale)
{
    return std::max(1, pixels(blockPoints, scale));
}

QRect HudLayout::lens(QPoint pointer, QSize screen, double scale)
{
    const int side = patchSide * blockSide(scale);
    const int gap = pixels(pointerGap, scale);
    QPoint corner = pointer + QPoint(gap, gap);
    if (corner.x() + side > screen.width())
        corner.rx() = pointer.x() - gap - side;
    if (corner.y() + side > screen.height() - pixels(footRoom, scale))
        corner.ry() = pointer.y() - gap - side;
    return {corner, QSize(side, side)};
}

QString HudLayout::sizeText(QSize selection)
{
    return u"%1 × %2"_s.arg(selection.width()).arg(selection.height());
}

QString HudLayout::pixelText(QPoint pixel, QRgb colour)
{
    return QString::asprintf("%d, %d   #%02X%02X%02X", pixel.x(), pixel.y(), qRed(colour),
        qGreen(colour), qBlue(colour));
}

QString HudLayout::hintText(const QString& purpose)
{
    const QString keys = Words::tr(
        "Drag to select   •   Click a window   •   Space: whole screen   •   Esc: cancel");
    return purpose.isEmpty() ? keys : purpose + u"   •   "_s + keys;
}
