// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "fun/FxPainter.h"
#include "fun/FxScene.h"
#include "fun/FxTiles.h"
#include "platform/SurfaceTraits.h"
#include "widgets/FrameClock.h"

#include <QBackingStore>
#include <QWindow>

/// A window over one whole screen that shows an effect and nothing else: clicks pass through, it is
/// never active, and no capture shows it. Only for where windows are blended.
class FxPanel final : public QWindow {
public:
    FxPanel(SurfaceTraits& surfaces, const DisplayInfo& display, std::unique_ptr<FxScene> scene,
        const QImage& picture);

    /// Shows the window and plays from the scene's beginning, frame after frame.
    void play();

    /// Paints what differs from the last frame, and returns how many pixels that were.
    qint64 paintAt(double seconds);

protected:
    void exposeEvent(QExposeEvent* event) override;

private:
    bool isPaintedOver(const QRegion& changed, const FxSprites& sprites) const;

    const DisplayInfo m_display;
    const std::unique_ptr<FxScene> m_scene;
    FxPainter m_painter;
    QBackingStore m_store;
    FrameClock m_clock;
    /// Where anything is ever drawn, in points of the window, which is cut to it: the less of the
    /// screen has to be blended, the better.
    const QRect m_shown;
    FxTiles m_drawn, m_drawing; ///< By the last frame and by the one being painted.
    bool m_fresh = true; ///< Nothing is in the store yet.
};
