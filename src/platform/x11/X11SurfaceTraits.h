// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"
#include "platform/SurfaceTraits.h"
#include "platform/x11/CompositorWatch.h"
#include "platform/x11/PointerTrail.h"

#include <QPointer>
#include <QTimer>
#include <QWindow>

/// Over the toolkit's own connection to the X server: keys that are grabbed on another one would
/// not reach the toolkit's windows.
class X11SurfaceTraits final : public SurfaceTraits {
public:
    /// Fails when the toolkit draws to something else than an X server.
    static Result<std::unique_ptr<SurfaceTraits>> make();

    bool blendsWindows() const override { return m_compositor.isRunning(); }
    void makeFloating(QWindow& window) override;
    void setInputRegion(QWindow& window, const QRegion& region) override;
    void takeFocus(QWindow& window) override;
    void returnFocus() override;
    void makeOverlay(QWindow& window, const DisplayInfo& display) override;
    void fill(QWindow& window, const QColor& colour) override;
    void grabKeyboard(QWindow& window) override;
    void releaseKeyboard() override;
    QPoint nativePosition(const QMouseEvent& event, const QWindow& window) const override;
    void movePointer(QPoint native) override;

private:
    explicit X11SurfaceTraits(xcb_connection_t* xcb);
    void tryToGrab();

    xcb_connection_t* m_xcb;
    CompositorWatch m_compositor;
    xcb_window_t m_focusBefore = XCB_WINDOW_NONE; ///< Had the keyboard before a window of ours.
    PointerTrail m_trail;
    QPointer<QWindow> m_keyboardTarget; ///< Null while nobody wants the keyboard.
    QTimer m_retry;
};
