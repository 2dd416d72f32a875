// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "doctor/PatternWindow.h"

#include <QPainter>

PatternWindow::PatternWindow(SurfaceTraits& surfaces, DisplayInfo display, QImage picture)
    : m_picture(std::move(picture))
    , m_place(std::move(display))
{
    setSurfaceType(QSurface::RasterSurface);
    m_place.native.setSize(m_picture.size()); // The corner is at the same place in points.
    surfaces.makeOverlay(*this, m_place);
    surfaces.setInputRegion(*this, {});
    show();
    paint(); // Without waiting to be told that the window is exposed.
}

void PatternWindow::exposeEvent(QExposeEvent*)
{
    paint();
}

void PatternWindow::paint()
{
    const QRect everything({}, size());
    m_store.resize(size());
    m_store.beginPaint(everything);
    // A raster surface is painted on an image, here without its scale.
    Q_ASSERT(m_store.paintDevice()->devType() == QInternal::Image);
    auto& image = static_cast<QImage&>(*m_store.paintDevice());
    QImage pixels(
        image.bits(), image.width(), image.height(), image.bytesPerLine(), image.format());
    QPainter(&pixels).drawImage(0, 0, m_picture);
    m_store.endPaint();
    m_store.flush(everything);
}
