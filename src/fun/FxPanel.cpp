// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "fun/FxPanel.h"

#include <QExposeEvent>
#include <QPainter>

#include <cmath>

namespace {

/// Pixels of the squares in which changes are counted.
constexpr double tileSide = 32;

QSize pointsOf(const DisplayInfo& display)
{
    const auto points = [&display](int pixels) { return int(std::ceil(pixels / display.scale)); };
    return {points(display.native.width()), points(display.native.height())};
}

qint64 pixelsOf(const QRegion& points, double scale)
{
    double area = 0;
    for (const QRect& rect : points)
        area += double(rect.width()) * rect.height();
    return std::llround(area * scale * scale);
}

} // namespace

FxPanel::FxPanel(SurfaceTraits& surfaces, const DisplayInfo& display,
    std::unique_ptr<FxScene> scene, const QImage& picture)
    : m_display(display)
    , m_scene(std::move(scene))
    , m_painter(picture)
    , m_store(this)
    , m_clock([this](double seconds) { paintAt(seconds); })
    , m_shown(m_scene->bounds().toAlignedRect() & QRect({}, pointsOf(display)))
    , m_drawn(pointsOf(display), int(std::ceil(tileSide / display.scale)))
    , m_drawing(m_drawn)
{
    setSurfaceType(QSurface::RasterSurface);
    QSurfaceFormat blended = format();
    blended.setAlphaBufferSize(8);
    setFormat(blended);
    setFlags(Qt::Tool | Qt::WindowTransparentForInput | Qt::WindowDoesNotAcceptFocus
        | Qt::NoDropShadowWindowHint);
    surfaces.makeOverlay(*this, display);
}

void FxPanel::play()
{
    setMask(m_shown);
    show();
    m_clock.start();
    paintAt(0);
}

qint64 FxPanel::paintAt(double seconds)
{
    const FxSprites sprites = m_scene->at(seconds);
    m_drawing.clear();
    for (const auto& sprite : sprites)
        m_drawing.add(sprite.box());
    m_drawn.add(m_drawing);
    QRegion changed = m_drawn.region() & m_shown;
    std::swap(m_drawn, m_drawing);
    if (std::exchange(m_fresh, false)) {
        m_store.resize(pointsOf(m_display));
        changed = m_shown;
    }
    if (changed.isEmpty())
        return 0;
    // What is told here is cleared, which takes longer than to paint over it.
    const QRect corner(changed.boundingRect().topLeft(), QSize(1, 1));
    m_store.beginPaint(isPaintedOver(changed, sprites) ? QRegion(corner) : changed);
    QPainter painter(m_store.paintDevice());
    m_painter.paint(painter, sprites);
    painter.end();
    m_store.endPaint();
    m_store.flush(changed);
    return pixelsOf(changed, m_display.scale);
}

bool FxPanel::isPaintedOver(const QRegion& changed, const FxSprites& sprites) const
{
    return !sprites.empty() && sprites.front().shape == FxSprite::Shape::Ground
        && sprites.front().area().contains(changed.boundingRect());
}

void FxPanel::exposeEvent(QExposeEvent*)
{
    if (isExposed() && !m_fresh)
        m_store.flush(m_shown);
}
