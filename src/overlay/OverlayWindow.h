// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "overlay/OverlayView.h"
#include "platform/SurfaceTraits.h"

#include <QBackingStore>
#include <QWindow>

/// A window over one whole screen that shows an OverlayView. It keeps its memory while it is
/// hidden, so that it can be shown again at once, but nothing of what it showed.
class OverlayWindow final : public QWindow {
public:
    OverlayWindow(SurfaceTraits& surfaces, const DisplayInfo& display);

    const DisplayInfo& display() const { return m_display; }

    /// Shows the window with the view painted: no other content of it is ever seen.
    void present(std::unique_ptr<OverlayView> view, const OverlayScene& scene);
    void dismiss(); ///< Hides the window and lets the view go.

    /// Paints what has changed when the present events are all handled.
    void setScene(const OverlayScene& scene);
    qint64 paintNow(); ///< Returns how many pixels that were.

    QAccessibleInterface* accessibleRoot() const override;

protected:
    bool event(QEvent* event) override;
    void exposeEvent(QExposeEvent* event) override;

private:
    void flush(const QRegion& native);

    DisplayInfo m_display;
    QBackingStore m_store;
    std::unique_ptr<OverlayView> m_view;
    QRegion m_changed; ///< Device pixels.
    bool m_updatePosted = false;
};
