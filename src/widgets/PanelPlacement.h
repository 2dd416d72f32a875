// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QRect>

/// Where floating panels go. All in points of the toolkit, y down.
namespace PanelPlacement {

struct Screen {
    QRect frame;
    QRect workArea; ///< The frame without panels of the desktop.
};

/// The screens as the toolkit knows them, the primary one first.
QList<Screen> screens();

/// The first screen with the pointer on it, else the primary one, else one of 1440 × 900.
Screen under(QPoint pointer, const QList<Screen>& screens);

QRect bottomRight(const Screen& screen, QSize panel, int margin); ///< In the work area.
QRect topRight(const Screen& screen, QSize panel, int margin); ///< In the work area.
/// In the middle below a place, or above it in the lower half of the screen; in the work area.
QRect beside(const Screen& screen, QSize panel, QPoint place);
QRect centred(const Screen& screen, QSize panel); ///< On the whole screen.

} // namespace PanelPlacement
