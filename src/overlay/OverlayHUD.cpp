// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "overlay/OverlayHUD.h"

#include "overlay/Dashes.h"
#include "overlay/HudLayout.h"

#include <QPainter>

#include <cmath>

using HudLayout::pixels;

namespace {

constexpr float crosshairOpacity = 0.6f;
constexpr double dash = 4; // Points, as all lengths here.
constexpr double gapOfSize = 8; // Above the selection.
constexpr double gapOfPixel = 4; // Below the lens.
constexpr double hintFromTop = 40;

} // namespace

OverlayHUD::OverlayHUD(
    QImage picture, double scale, const OverlayStyle& style, const QString& purpose)
    : m_picture(std::move(picture))
    , m_scale(scale)
    , m_style(style)
    , m_hint(HudLayout::hintText(purpose))
    , m_sizePill(Pill::font(12), Pill::Digits::EqualWidth)
    , m_hintPill(Pill::font(13))
    , m_pixelPill(Pill::font(11, QFont::Medium), Pill::Digits::EqualWidth)
    , m_magnifier(m_picture, scale, style.accent)
{
}

HudContent OverlayHUD::contentOf(const OverlayScene& scene) const
{
    HudContent content;
    if (m_style.crosshair && !scene.dragging)
        content.crosshair = scene.pointer;
    if (!scene.selection.isEmpty())
        content.size = label(m_sizePill, HudLayout::sizeText(scene.selection.size()),
            toPoints(scene.selection.topLeft()) - QPointF(0, gapOfSize), Pill::Edge::Bottom);
    if (!scene.dragging) {
        const double width = m_hintPill.size(m_hint).width();
        const double view = m_picture.width() / m_scale;
        content.hint
            = label(m_hintPill, m_hint, {(view - width) / 2, hintFromTop}, Pill::Edge::Top);
    }
    if (m_style.magnifier && scene.pointer) {
        content.lens = HudLayout::lens(*scene.pointer, m_picture.size(), m_scale);
        content.lensPixel = *scene.pointer;
        const QString text = HudLayout::pixelText(*scene.pointer, m_picture.pixel(*scene.pointer));
        const QRectF lens(toPoints(content.lens.topLeft()), QSizeF(content.lens.size()) / m_scale);
        const double left = lens.center().x() - m_pixelPill.size(text).width() / 2;
        content.pixel
            = label(m_pixelPill, text, {left, lens.bottom() + gapOfPixel}, Pill::Edge::Top);
    }
    return content;
}

QRegion OverlayHUD::difference(const HudContent& before, const HudContent& after) const
{
    QRegion region;
    if (before.crosshair != after.crosshair)
        for (const auto& crosshair : {before.crosshair, after.crosshair})
            if (crosshair)
                for (const QRect& guide : guides(*crosshair))
                    region += guide;
    for (const auto label : {&HudContent::size, &HudContent::hint, &HudContent::pixel})
        if (before.*label != after.*label)
            region += QRegion((before.*label).box) + (after.*label).box;
    if (before.lens != after.lens || before.lensPixel != after.lensPixel)
        for (const QRect& lens : {before.lens, after.lens})
            if (!lens.isEmpty())
                region += m_magnifier.extent(lens);
    return region;
}

void OverlayHUD::draw(QImage& target, const QRegion& region, const HudContent& content)
{
    if (content.crosshair) {
        QColor colour = m_style.accent;
        colour.setAlphaF(crosshairOpacity);
        const int length = pixels(dash, m_scale);
        const auto [upright, level] = guides(*content.crosshair);
        drawDashes(target, region, {upright, Qt::Vertical, length, length}, colour);
        drawDashes(target, region, {level, Qt::Horizontal, length, length}, colour);
    }
    QPainter painter(&target);
    painter.setClipRegion(region);
    const auto drawLabel = [&](const Pill& pill, const HudContent::Label& label) {
        if (!region.intersects(label.box))
            return;
        painter.save();
        painter.scale(m_scale, m_scale);
        pill.draw(painter, {toPoints(label.box.topLeft()), QSizeF(label.box.size()) / m_scale},
            label.text);
        painter.restore();
    };
    drawLabel(m_sizePill, content.size);
    drawLabel(m_hintPill, content.hint);
    if (!content.lens.isEmpty() && region.intersects(m_magnifier.extent(content.lens)))
        m_magnifier.draw(painter, content.lens, content.lensPixel);
    drawLabel(m_pixelPill, content.pixel);
}

/// On whole pixels, so that letters and edges are equally crisp wherever the label is.
HudContent::Label OverlayHUD::label(
    const Pill& pill, const QString& text, QPointF position, Pill::Edge edge) const
{
    const QRectF view({}, QSizeF(m_picture.size()) / m_scale);
    const QRectF box = Pill::placed(position, edge, pill.size(text), view);
    const QSize size(int(std::ceil(box.width() * m_scale)), int(std::ceil(box.height() * m_scale)));
    return {{(box.topLeft() * m_scale).toPoint(), size}, text};
}

std::array<QRect, 2> OverlayHUD::guides(QPoint crosshair) const
{
    // A selection that begins here begins between two pixels: the guide lies on both of them, or
    // on the one that is selected.
    const int width = std::max(1, pixels(1, m_scale));
    const QPoint first = crosshair - QPoint(width / 2, width / 2);
    return {QRect(first.x(), 0, width, m_picture.height()),
        QRect(0, first.y(), m_picture.width(), width)};
}
