// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

/// What decides on the scale of screens under X11, which has no such notion itself.
struct ScaleSettings {
    QString globalFactor; ///< QT_SCALE_FACTOR.
    QString screenFactors; ///< QT_SCREEN_SCALE_FACTORS: "1;2" or "NAME=1;NAME=2".
    QByteArray resources; ///< The RESOURCE_MANAGER property of the root window.

    static ScaleSettings ofEnvironment(QByteArray resources);

    /// Device pixels per point of a screen, as the toolkit computes it, at least 0.1: the factor of
    /// that screen, else Xft.dpi / 96, times the global factor.
    double scaleOf(const QString& screenName, qsizetype screenIndex) const;
};
