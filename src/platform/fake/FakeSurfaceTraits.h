// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/SurfaceTraits.h"

#include <QMouseEvent>

/// Lets everything be, and remembers who was given the keyboard.
class FakeSurfaceTraits final : public SurfaceTraits {
public:
    bool blendsWindows() const override { return blends; }
    void makeFloating(QWindow&) override { }
    void setInputRegion(QWindow&, const QRegion&) override { }
    void takeFocus(QWindow& window) override { focused = &window; }
    void returnFocus() override { focused = nullptr; }
    void makeOverlay(QWindow&, const DisplayInfo&) override { }
    void fill(QWindow&, const QColor&) override { }
    void grabKeyboard(QWindow&) override { }
    void releaseKeyboard() override { }
    QPoint nativePosition(const QMouseEvent& event, const QWindow&) const override
    {
        return event.globalPosition().toPoint();
    }
    void movePointer(QPoint) override { }

    bool blends = true;
    QWindow* focused = nullptr;
};
