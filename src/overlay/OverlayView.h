// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "overlay/OverlayHUD.h"

/// What one screen shows during a selection: its frozen picture, dimmed but for the selection, a
/// border around that, and the heads-up display. Paints only what has changed.
class OverlayView final {
public:
    OverlayView(const FrozenScreen& screen, const OverlayStyle& style, const QString& purpose);

    QSize size() const { return m_picture.size(); } ///< Device pixels.
    const QString& hint() const { return m_hud.hint(); } ///< What can be done.
    QRegion everything() const { return QRect({}, size()); }

    /// Returns what has to be painted for it, in device pixels, y down.
    QRegion setScene(const OverlayScene& scene);

    /// @param target RGB32, at least of this size; changed within the region only.
    void paint(QImage& target, const QRegion& region);

private:
    QRect withBorder(QRect selection) const;
    QRegion borderOf(const OverlayScene& scene) const;
    void paintPicture(QImage& target, const QRegion& region) const;
    void paintBorder(QImage& target, const QRegion& region) const;

    QImage m_picture; ///< 32 bits a pixel, opaque.
    double m_scale;
    OverlayStyle m_style;
    OverlayHUD m_hud;
    OverlayScene m_scene;
    HudContent m_content;
};
