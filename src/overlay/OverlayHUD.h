// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "overlay/Magnifier.h"
#include "overlay/OverlayModel.h"
#include "overlay/OverlayStyle.h"
#include "widgets/Pill.h"

#include <QRegion>

/// What the heads-up display shows at one moment, in device pixels of its screen, y down.
struct HudContent {
    struct Label {
        QRect box; ///< Empty: there is no such label.
        QString text;

        friend bool operator==(const Label&, const Label&) = default;
    };

    std::optional<QPoint> crosshair;
    Label size, hint, pixel;
    QRect lens; ///< Empty: no magnifier.
    QPoint lensPixel; ///< In its middle.
};

/// What lies over the frozen picture of one screen: crosshair guides, the size of the selection, a
/// hint, a magnifier.
class OverlayHUD final {
public:
    /// @param scale device pixels per point.
    OverlayHUD(QImage picture, double scale, const OverlayStyle& style, const QString& purpose);

    const QString& hint() const { return m_hint; }

    HudContent contentOf(const OverlayScene& scene) const;

    /// All that one content shows and the other does not.
    QRegion difference(const HudContent& before, const HudContent& after) const;

    /// @param target RGB32, the size of the screen; changed within the region only.
    void draw(QImage& target, const QRegion& region, const HudContent& content);

private:
    HudContent::Label label(
        const Pill& pill, const QString& text, QPointF position, Pill::Edge edge) const;
    std::array<QRect, 2> guides(QPoint crosshair) const; ///< Upright, level.
    QPointF toPoints(QPoint pixel) const { return QPointF(pixel) / m_scale; }

    QImage m_picture;
    double m_scale;
    OverlayStyle m_style;
    QString m_hint;
    Pill m_sizePill, m_hintPill, m_pixelPill;
    Magnifier m_magnifier;
};
