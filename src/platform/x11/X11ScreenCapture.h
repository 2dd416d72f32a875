// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Bitmap.h"
#include "platform/Platform.h"
#include "platform/x11/SharedSegment.h"
#include "platform/x11/X11Displays.h"
#include "platform/x11/X11Windows.h"

#include <QSet>

class FrozenPixmap;

/// Reads the screen of an X server.
class X11ScreenCapture final : public ScreenCapture {
public:
    X11ScreenCapture(std::shared_ptr<X11Connection> connection, Residency residency);

    bool permitted() const override { return true; }
    Result<QList<Window>> windows() override;
    QHash<WindowId, int> frontToBackOrder() override;
    Pending<Frozen> area(QRect native, QList<WindowId> excluded, Pointer pointer) override;
    Pending<Frozen> window(WindowId id, WindowShadow shadow, Pointer pointer) override;

private:
    Result<Frozen> readArea(QRect native, const QList<WindowId>& excluded, Pointer pointer);
    Result<std::shared_ptr<FrozenPixmap>> freeze(
        QRect area, const QSet<xcb_window_t>& excludedTopLevels);
    Result<Frozen> readWindow(WindowId id, WindowShadow shadow, Pointer pointer);
    void prepare(FrozenPixmap& frozen, Pointer pointer);

    std::shared_ptr<X11Connection> m_connection;
    X11Displays m_displays;
    X11Windows m_windows;
    std::shared_ptr<SharedSegment> m_segment; ///< Kept warm between captures.
};
