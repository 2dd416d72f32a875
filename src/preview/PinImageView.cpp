// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "preview/PinImageView.h"

#include "preview/PinRules.h"
#include "widgets/Accessible.h"

#include <QMouseEvent>
#include <QPainter>

#include <cmath>

namespace {

Qt::CursorShape cursorOf(Qt::Edges edges)
{
    const bool across = edges & (Qt::LeftEdge | Qt::RightEdge);
    const bool along = edges & (Qt::TopEdge | Qt::BottomEdge);
    if (across && along)
        return bool(edges & Qt::LeftEdge) == bool(edges & Qt::TopEdge) ? Qt::SizeFDiagCursor
                                                                       : Qt::SizeBDiagCursor;
    if (across)
        return Qt::SizeHorCursor;
    return along ? Qt::SizeVerCursor : Qt::ArrowCursor;
}

} // namespace

PinImageView::PinImageView(const Themes& themes, const QImage& image, QWidget* parent)
    : QWidget(parent)
    , m_themes(themes)
    , m_picture(image)
{
    Accessible::describe(*this, {QAccessible::Graphic});
    setMouseTracking(true);
    connect(&m_themes, &Themes::changed, this, qOverload<>(&QWidget::update));
}

void PinImageView::setExtent(QSizeF extent)
{
    m_extent = extent;
    resize(int(std::ceil(extent.width())), int(std::ceil(extent.height())));
    update();
}

void PinImageView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    // In whole device pixels, so that one of the picture can be one of the screen.
    const double scale = devicePixelRatioF();
    const QPointF corner = painter.deviceTransform().map(QPointF());
    painter.scale(1 / scale, 1 / scale);
    painter.translate(QPointF(corner.toPoint()) - corner);
    const QSize pixels = (m_extent * scale).toSize().expandedTo({1, 1});

    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_picture.brush(pixels));
    const double radius
        = std::min<double>(Radius::cell * scale, std::min(pixels.width(), pixels.height()) / 2.0);
    painter.drawRoundedRect(QRect({}, pixels), radius, radius);

    const double line = Extent::hairline * scale;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(m_themes.current().hairline, line));
    painter.drawRoundedRect(QRectF({}, pixels).adjusted(line / 2, line / 2, -line / 2, -line / 2),
        radius - line / 2, radius - line / 2);
}

void PinImageView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_grip = event->globalPosition();
    m_edges = PinRules::edgesAt(event->position(), m_extent);
    Q_EMIT grabbed();
}

void PinImageView::mouseMoveEvent(QMouseEvent* event)
{
    if (m_grip)
        Q_EMIT dragged(event->globalPosition() - *m_grip, m_edges);
    else
        setCursor(cursorOf(PinRules::edgesAt(event->position(), m_extent)));
}

void PinImageView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && std::exchange(m_grip, std::nullopt))
        Q_EMIT dropped();
}

void PinImageView::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        Q_EMIT doubleClicked();
}
