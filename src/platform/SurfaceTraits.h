// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Displays.h"

class QMouseEvent;
class QWindow;

/// What windows of ours need of the system beyond what the toolkit gives.
class SurfaceTraits {
public:
    virtual ~SurfaceTraits() = default;

    /// Makes a window that has not been shown cover one screen exactly, above panels and
    /// full-screen windows, without becoming active and without anything around it.
    virtual void makeOverlay(QWindow& window, const DisplayInfo& display) = 0;

    /// Sends all keys to a window on screen until releaseKeyboard(), whichever window is active.
    /// While another program holds the keyboard, as an open menu does, it is tried again and again.
    virtual void grabKeyboard(QWindow& window) = 0;
    virtual void releaseKeyboard() = 0;

    /// Where a mouse event happened that came to an overlay, in device pixels of the whole desktop,
    /// y down. The event itself may be rounded to points.
    virtual QPoint nativePosition(const QMouseEvent& event, const QWindow& window) const = 0;

    /// Moves the pointer, to device pixels of the whole desktop, y down; returns when it is there.
    virtual void movePointer(QPoint native) = 0;
};
