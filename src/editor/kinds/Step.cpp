// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/kinds/Step.h"

#include "editor/Colors.h"
#include "editor/Geometry.h"
#include "editor/LaidText.h"
#include "editor/TextStyles.h"

#include <QPainter>

namespace {

double ringWidth(const Annotation& it)
{
    return std::max(it.fontSize / 12, 2.);
}

} // namespace

void Step::draw(QPainter& painter, const Annotation& it, const QImage&) const
{
    const QRectF badge = bounds(it);
    painter.setPen(Qt::NoPen);
    painter.setBrush(it.color);
    painter.drawEllipse(badge);
    painter.setPen(QPen(Qt::white, ringWidth(it)));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(grown(badge, -1.5));

    const auto digits = LaidText::of(QString::number(it.number), systemFont(QFont::Bold));
    const double size = it.fontSize * 0.8;
    painter.save();
    painter.translate(badge.center());
    painter.scale(size / LaidText::em, size / LaidText::em);
    painter.translate(-digits->size().width() / 2, -digits->size().height() / 2);
    painter.fillPath(digits->outline(), Colors::contrasting(it.color));
    painter.restore();
}

QRectF Step::bounds(const Annotation& it) const
{
    const double side = it.fontSize * 1.5;
    return {it.a.x() - side / 2, it.a.y() - side / 2, side, side};
}

QRectF Step::ink(const Annotation& it) const
{
    // Digits of a large number stick out.
    const auto digits = LaidText::of(QString::number(it.number), systemFont(QFont::Bold));
    QRectF text({}, digits->size() * (it.fontSize * 0.8 / LaidText::em));
    text.moveCenter(it.a);
    return grown(bounds(it) | text, ringWidth(it) / 2 + 1);
}

void Step::begin(Annotation& it, const ToolSettings& settings, int number, double) const
{
    it.fontSize = settings.fontSize;
    it.number = number;
}
