// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "overlay/OverlayWindow.h"

#include "overlay/OverlayAccessible.h"

#include <QCoreApplication>
#include <QExposeEvent>

#include <cmath>

namespace {

/// Whole points that cover a region of device pixels.
QRegion pointsAround(const QRegion& pixels, double scale)
{
    QRegion points;
    for (const QRect& rect : pixels)
        points
            += QRectF(QPointF(rect.topLeft()) / scale, QSizeF(rect.size()) / scale).toAlignedRect();
    return points;
}

qint64 areaOf(const QRegion& region)
{
    qint64 area = 0;
    for (const QRect& rect : region)
        area += qint64(rect.width()) * rect.height();
    return area;
}

} // namespace

OverlayWindow::OverlayWindow(SurfaceTraits& surfaces, const DisplayInfo& display)
    : m_display(display)
    , m_store(this)
{
    setSurfaceType(QSurface::RasterSurface);
    setCursor(Qt::CrossCursor);
    surfaces.makeOverlay(*this, display);
}

void OverlayWindow::present(std::unique_ptr<OverlayView> view, const OverlayScene& scene)
{
    m_view = std::move(view);
    m_view->setScene(scene);
    setTitle(m_view->hint());
    OverlayAccessible::tell(*this, scene);
    m_changed = m_view->everything();
    show();
    paintNow(); // Without waiting to be told that the window is exposed.
}

void OverlayWindow::dismiss()
{
    hide();
    m_view.reset();
    m_changed = {};
}

void OverlayWindow::setScene(const OverlayScene& scene)
{
    m_changed += m_view->setScene(scene);
    OverlayAccessible::tell(*this, scene);
    if (m_changed.isEmpty() || m_updatePosted)
        return;
    m_updatePosted = true;
    QCoreApplication::postEvent(this, new QEvent(QEvent::UpdateRequest), Qt::LowEventPriority);
}

qint64 OverlayWindow::paintNow()
{
    if (!m_view || m_changed.isEmpty())
        return 0;
    const double scale = devicePixelRatio();
    const QSize points(int(std::ceil(m_view->size().width() / scale)),
        int(std::ceil(m_view->size().height() / scale)));
    if (m_store.size() != points)
        m_store.resize(points);
    const QRegion changed = std::exchange(m_changed, {});
    m_store.beginPaint(pointsAround(changed, scale));
    // A raster surface is painted on an image. Its pixels without its scale, as the view works in
    // device pixels.
    Q_ASSERT(m_store.paintDevice()->devType() == QInternal::Image);
    auto& image = static_cast<QImage&>(*m_store.paintDevice());
    QImage target(
        image.bits(), image.width(), image.height(), image.bytesPerLine(), QImage::Format_RGB32);
    m_view->paint(target, changed & target.rect());
    m_store.endPaint();
    flush(changed);
    return areaOf(changed);
}

QAccessibleInterface* OverlayWindow::accessibleRoot() const
{
    return OverlayAccessible::interfaceOf(
        const_cast<OverlayWindow&>(*this)); // As the toolkit asks.
}

bool OverlayWindow::event(QEvent* event)
{
    if (event->type() != QEvent::UpdateRequest)
        return QWindow::event(event);
    m_updatePosted = false;
    paintNow();
    return true;
}

void OverlayWindow::exposeEvent(QExposeEvent*)
{
    // What was uncovered is in the store already.
    if (isExposed() && m_view)
        flush(m_view->everything() - m_changed);
}

void OverlayWindow::flush(const QRegion& native)
{
    m_store.flush(pointsAround(native, devicePixelRatio()));
}
