// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/CanvasDecorations.h"

#include "editor/CanvasModel.h"

#include <QPainter>
#include <QPainterPath>

namespace {

// Points.
constexpr double handleDiameter = 9, handleLine = 1.5;
constexpr double outlineLine = 1, outlineDash = 5;
constexpr double cropLine = 1.5, cropDash = 6, gap = 4;
constexpr int around = 2; // Beyond a line, for what antialiasing touches.

constexpr QColor shade(0, 0, 0, 128);

/// A pen whose pattern is in points, too.
QPen dashed(const QColor& color, double line, double dash)
{
    QPen pen(color, line, Qt::CustomDashLine, Qt::FlatCap, Qt::MiterJoin);
    pen.setDashPattern({dash / line, gap / line});
    return pen;
}

/// The line around a rectangle, without its inside.
QRegion frame(const QRectF& rect)
{
    const QRect outer = rect.toAlignedRect().adjusted(-around, -around, around, around);
    const int thick = 2 * around + 1;
    return QRegion(outer) - outer.adjusted(thick, thick, -thick, -thick);
}

QRectF handleRect(QPointF centre)
{
    constexpr double radius = handleDiameter / 2;
    return {centre.x() - radius, centre.y() - radius, handleDiameter, handleDiameter};
}

QRegion everything(const CenteringClipView& view)
{
    return view.toView(QRectF({}, view.picture())).toAlignedRect();
}

} // namespace

CanvasDecorations CanvasDecorations::of(const CanvasModel& model)
{
    CanvasDecorations shown;
    shown.crop = model.cropRect();
    const Annotation* const selected = model.document().selected();
    if (selected && !model.textPrompt()) {
        shown.outline = selected->bounds();
        shown.handles = selected->handles();
    }
    return shown;
}

void CanvasDecorations::draw(
    QPainter& painter, const CenteringClipView& view, const QColor& accent) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    if (crop) {
        QPainterPath outside;
        outside.setFillRule(Qt::OddEvenFill);
        outside.addRect(view.toView(QRectF({}, view.picture())));
        outside.addRect(view.toView(*crop));
        painter.fillPath(outside, shade);
        painter.setPen(dashed(Qt::white, cropLine, cropDash));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(view.toView(*crop));
    }
    if (outline) {
        painter.setPen(dashed(accent, outlineLine, outlineDash));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(view.toView(*outline));
    }
    painter.setPen(QPen(accent, handleLine));
    painter.setBrush(Qt::white);
    for (const QPointF& handle : handles)
        painter.drawEllipse(handleRect(view.toView(handle)));
    painter.restore();
}

QRegion CanvasDecorations::region(const CenteringClipView& view) const
{
    QRegion all;
    if (crop)
        all += everything(view) + frame(view.toView(*crop));
    if (outline)
        all += frame(view.toView(*outline));
    for (const QPointF& handle : handles)
        all += handleRect(view.toView(handle))
                   .toAlignedRect()
                   .adjusted(-around, -around, around, around);
    return all;
}
