// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/X11Windows.h"

#include <QSet>

/// Paints what lies behind some windows over them in a picture of the screen, from the pixels that
/// every other window keeps off screen. The server does it all, so it works at its speed. Shadows
/// and other effects of a compositing manager are not seen behind the windows left out.
///
/// @param picture a pixmap of the root window's depth that shows `area` of the root window.
void paintWithout(X11Connection& connection, const X11Windows& windows, xcb_pixmap_t picture,
    QRect area, const QSet<xcb_window_t>& excludedTopLevels);
