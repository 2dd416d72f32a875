// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "fun/FxOutline.h"

#include <QRegion>

FxOutline::FxOutline(SurfaceTraits& surfaces, const DisplayInfo& display, QRectF area,
    double duration, QColor colour)
    : m_area(area & QRectF({}, display.points.size()))
    , m_duration(duration)
    , m_clock([this](double seconds) { showAt(seconds); })
{
    setSurfaceType(QSurface::RasterSurface);
    setFlags(Qt::Tool | Qt::WindowTransparentForInput | Qt::WindowDoesNotAcceptFocus
        | Qt::NoDropShadowWindowHint);
    surfaces.makeOverlay(*this, display);
    surfaces.fill(*this, colour);
    m_clock.start();
    showAt(0);
}

void FxOutline::showAt(double seconds)
{
    QRegion outline;
    for (const QRect& side : FxRules::outlineAt(seconds, m_duration, m_area))
        outline += side;
    if (!outline.isEmpty() && outline != mask())
        setMask(outline);
    setVisible(!outline.isEmpty()); // To the toolkit an empty mask is none.
}
