// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/SurfaceTraits.h"

#include <QBackingStore>
#include <QImage>
#include <QWindow>

/// Shows a picture in the top left corner of a screen, pixel by pixel, above everything and without
/// being in the way of the mouse.
class PatternWindow final : public QWindow {
    Q_OBJECT

public:
    /// @param picture of device pixels; smaller than the screen.
    PatternWindow(SurfaceTraits& surfaces, DisplayInfo display, QImage picture);

    QRect native() const { return m_place.native; } ///< Device pixels of the whole desktop, y down.

protected:
    void exposeEvent(QExposeEvent* event) override;

private:
    void paint();

    const QImage m_picture;
    DisplayInfo m_place; ///< The corner, as if it were a screen.
    QBackingStore m_store {this};
};
