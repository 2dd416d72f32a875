// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Displays.h"

#include <QObject>
#include <QRegion>

class QColor;
class QMouseEvent;
class QWindow;

/// What windows of ours need of the system beyond what the toolkit gives.
class SurfaceTraits : public QObject {
    Q_OBJECT

public:
    /// Whether translucent windows let through what lies below them; else they show black there.
    virtual bool blendsWindows() const = 0;

    /// Makes a window that has not been shown float above all others, full-screen ones included, on
    /// every desktop. It does not become active when it is shown or clicked.
    virtual void makeFloating(QWindow& window) = 0;

    /// Lets the pointer reach a window on screen within this region only, in points of the window;
    /// elsewhere it reaches what lies below. Nothing at all when empty.
    virtual void setInputRegion(QWindow& window, const QRegion& region) = 0;

    /// Gives a floating window on screen the keyboard, until returnFocus().
    virtual void takeFocus(QWindow& window) = 0;
    /// Gives the keyboard back to whom it was taken from, if a floating window of ours still has
    /// it.
    virtual void returnFocus() = 0;

    /// Makes a window that has not been shown cover one screen exactly, above panels and
    /// full-screen windows, without becoming active and without anything around it.
    virtual void makeOverlay(QWindow& window, const DisplayInfo& display) = 0;

    /// Has the system fill a window that was created and has not been shown, instead of its owner,
    /// who then must not paint it.
    virtual void fill(QWindow& window, const QColor& colour) = 0;

    /// Sends all keys to a window on screen until releaseKeyboard(), whichever window is active.
    /// While another program holds the keyboard, as an open menu does, it is tried again and again.
    virtual void grabKeyboard(QWindow& window) = 0;
    virtual void releaseKeyboard() = 0;

    /// Where a mouse event happened that came to an overlay, in device pixels of the whole desktop,
    /// y down. The event itself may be rounded to points.
    virtual QPoint nativePosition(const QMouseEvent& event, const QWindow& window) const = 0;

    /// Moves the pointer, to device pixels of the whole desktop, y down; returns when it is there.
    virtual void movePointer(QPoint native) = 0;

Q_SIGNALS:
    void blendingChanged(); ///< blendsWindows() answers differently now.
};
