// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "overlay/OverlayView.h"

#include "overlay/Dashes.h"
#include "overlay/DimRow.h"
#include "overlay/HudLayout.h"
#include "overlay/OverlayGeometry.h"

#include <QPainter>

#include <cstring>

using HudLayout::pixels;

namespace {

constexpr double borderWidth = 2; // Points, as all lengths here.
constexpr double dash = 6, gap = 4;
constexpr int hairline = 1; // Device pixels, outside of the border.
constexpr QColor hairlineColour(0, 0, 0, 140); // Keeps the border apart from any picture.
constexpr QColor gapColour(0, 0, 0, 90); // Between the dashes.

QImage opaque(const QImage& image)
{
    const auto format = image.format();
    const bool asItIs
        = format == QImage::Format_RGB32 || format == QImage::Format_ARGB32_Premultiplied;
    return asItIs ? image : image.convertToFormat(QImage::Format_RGB32);
}

} // namespace

OverlayView::OverlayView(
    const FrozenScreen& screen, const OverlayStyle& style, const QString& purpose)
    : m_picture(opaque(screen.image))
    , m_scale(OverlayGeometry::pixelsPerPoint(screen))
    , m_style(style)
    , m_hud(m_picture, m_scale, style, purpose)
    , m_content(m_hud.contentOf({}))
{
}

QRegion OverlayView::setScene(const OverlayScene& scene)
{
    if (scene == m_scene)
        return {};
    const OverlayScene before = std::exchange(m_scene, scene);
    const HudContent contentBefore = std::exchange(m_content, m_hud.contentOf(scene));
    QRegion changed = m_hud.difference(contentBefore, m_content);
    if (before.selection != scene.selection || before.dragging != scene.dragging)
        changed += (QRegion(before.selection) ^ QRegion(scene.selection)) + borderOf(before)
            + borderOf(scene);
    return changed & everything();
}

void OverlayView::paint(QImage& target, const QRegion& region)
{
    paintPicture(target, region);
    if (!m_scene.selection.isEmpty())
        paintBorder(target, region);
    m_hud.draw(target, region, m_content);
}

QRect OverlayView::withBorder(QRect selection) const
{
    const int width = std::max(1, pixels(borderWidth, m_scale)) + hairline;
    return selection.adjusted(-width, -width, width, width);
}

QRegion OverlayView::borderOf(const OverlayScene& scene) const
{
    return scene.selection.isEmpty() ? QRegion()
                                     : QRegion(withBorder(scene.selection)) - scene.selection;
}

void OverlayView::paintPicture(QImage& target, const QRegion& region) const
{
    const auto source = [this](QPoint at) {
        return reinterpret_cast<const QRgb*>(m_picture.constScanLine(at.y())) + at.x();
    };
    const auto destination = [&target](QPoint at) {
        return reinterpret_cast<QRgb*>(target.scanLine(at.y())) + at.x();
    };
    for (const QRect& rect : region& m_scene.selection)
        for (QPoint at = rect.topLeft(); at.y() <= rect.bottom(); ++at.ry())
            std::memcpy(destination(at), source(at), std::size_t(rect.width()) * 4);
    for (const QRect& rect : region - m_scene.selection)
        for (QPoint at = rect.topLeft(); at.y() <= rect.bottom(); ++at.ry())
            dimRow(source(at), destination(at), rect.width());
}

/// Wholly outside of the selection, whose pixels stay as they are.
void OverlayView::paintBorder(QImage& target, const QRegion& region) const
{
    const QRegion border = region & borderOf(m_scene);
    if (border.isEmpty())
        return;
    const QRect outer = withBorder(m_scene.selection);
    const QRect accent = outer.adjusted(hairline, hairline, -hairline, -hairline);
    const int width = m_scene.selection.left() - accent.left();
    {
        QPainter painter(&target);
        for (const QRect& rect : border - accent)
            painter.fillRect(rect, hairlineColour);
        for (const QRect& rect : border& accent)
            painter.fillRect(rect, m_scene.dragging ? m_style.accent : gapColour);
    }
    if (m_scene.dragging)
        return;
    const int on = pixels(dash, m_scale), off = pixels(gap, m_scale);
    const QRect inner = m_scene.selection;
    for (const int y : {accent.top(), inner.bottom() + 1})
        drawDashes(target, border,
            {{accent.left(), y, accent.width(), width}, Qt::Horizontal, on, off}, m_style.accent);
    for (const int x : {accent.left(), inner.right() + 1})
        drawDashes(target,
            border - QRect(accent.left(), accent.top(), accent.width(), width)
                - QRect(accent.left(), inner.bottom() + 1, accent.width(), width),
            {{x, accent.top(), width, accent.height()}, Qt::Vertical, on, off}, m_style.accent);
}
