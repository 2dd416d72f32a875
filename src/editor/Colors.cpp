// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/Colors.h"

QColor Colors::contrasting(const QColor& color)
{
    const QColor rgb = color.toRgb();
    if (!rgb.isValid())
        return Qt::white;
    const double luminance = 0.299 * rgb.redF() + 0.587 * rgb.greenF() + 0.114 * rgb.blueF();
    return luminance > 0.6 ? Qt::black : Qt::white;
}

QColor Colors::towardWhite(const QColor& color, double part)
{
    const QColor rgb = color.toRgb();
    if (!rgb.isValid())
        return Qt::white;
    const auto mixed = [part](float channel) { return float(channel + (1 - channel) * part); };
    return QColor::fromRgbF(
        mixed(rgb.redF()), mixed(rgb.greenF()), mixed(rgb.blueF()), rgb.alphaF());
}

QColor Colors::withAlpha(QColor color, double alpha)
{
    color.setAlphaF(float(alpha));
    return color;
}
