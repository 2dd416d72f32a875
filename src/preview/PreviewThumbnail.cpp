// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "preview/PreviewThumbnail.h"

#include "widgets/Contrast.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyleHints>

#include <cmath>

namespace {

constexpr int margin = int(EffectBorder::reach); // For the glow.
constexpr int checkerCell = 6; // Points.

/// In much smaller steps than pixels of the source it would be a blur: show the pixels.
constexpr double pixelated = 2;

QPainterPath rounded(QRectF box)
{
    // A small picture keeps straight edges.
    const double radius = std::min({Radius::thumbnail, box.width() / 4, box.height() / 4});
    QPainterPath path;
    path.addRoundedRect(box, radius, radius);
    return path;
}

void paintChecker(QPainter& painter, QRectF box, const Theme& theme)
{
    painter.fillRect(box, Contrast::over(theme.fill, theme.window));
    const QColor other = Contrast::over(theme.fillHover, theme.window);
    for (int row = 0; row * checkerCell < box.height(); ++row)
        for (int column = row % 2; column * checkerCell < box.width(); column += 2)
            painter.fillRect(QRectF(box.left() + column * checkerCell,
                                 box.top() + row * checkerCell, checkerCell, checkerCell)
                    & box,
                other);
}

} // namespace

PreviewThumbnail::PreviewThumbnail(const Themes& themes, const Shot& shot)
    : m_themes(themes)
    , m_image(shot.image)
    , m_clock([this](double) { update(borderRegion()); })
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
    connect(&themes, &Themes::changed, this, [this] { m_picture = {}; });
}

void PreviewThumbnail::setBorder(std::unique_ptr<EffectBorder> border)
{
    m_border = std::move(border);
}

QSizeF PreviewThumbnail::fitted(QSize pixels)
{
    return QSizeF(pixels).scaled(most, Qt::KeepAspectRatio).expandedTo({1, 1});
}

QSize PreviewThumbnail::sizeHint() const
{
    const int height = int(std::ceil(fitted(m_image.size()).height()));
    return QSize(most.width(), height) + QSize(2 * margin, 2 * margin);
}

QRectF PreviewThumbnail::frame() const
{
    QRectF frame({}, fitted(m_image.size()));
    frame.moveCenter(QRectF(rect()).center());
    return frame;
}

QRegion PreviewThumbnail::borderRegion() const
{
    constexpr double reach = EffectBorder::reach + 1;
    const QRect outer = frame().adjusted(-reach, -reach, reach, reach).toAlignedRect();
    const double corner = EffectBorder::reach + 1;
    const QRect inner = frame().adjusted(corner, corner, -corner, -corner).toRect();
    return QRegion(outer) - inner;
}

void PreviewThumbnail::prepare()
{
    const double scale = devicePixelRatioF();
    const QSize pixels = (fitted(m_image.size()) * scale).toSize().expandedTo({1, 1});
    if (m_picture.size() == pixels)
        return;
    const bool enlarges = pixels.width() >= m_image.width() * pixelated;
    const QImage reduced = m_image.scaled(pixels, Qt::IgnoreAspectRatio,
        enlarges ? Qt::FastTransformation : Qt::SmoothTransformation);
    m_picture = QPixmap(pixels);
    m_picture.fill(Qt::transparent);
    QPainter painter(&m_picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    const QRectF box({}, QSizeF(pixels) / scale);
    painter.setClipPath(rounded(box));
    if (reduced.hasAlphaChannel())
        paintChecker(painter, box, m_themes.current());
    painter.drawImage(box, reduced);
    painter.end();
    m_picture.setDevicePixelRatio(scale);
}

void PreviewThumbnail::paintEvent(QPaintEvent*)
{
    prepare();
    const Theme& theme = m_themes.current();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawPixmap(frame().topLeft(), m_picture);
    painter.setPen(QPen(theme.hairline, Extent::hairline));
    painter.drawPath(rounded(frame()));
    if (hasFocus()) {
        constexpr double away = 1.5 * Extent::focusRing;
        painter.setPen(QPen(theme.accentSymbol, Extent::focusRing));
        painter.drawPath(rounded(frame().adjusted(-away, -away, away, away)));
    }
    if (m_border)
        m_border->paint(painter, frame(), theme.reducedMotion ? 0 : m_clock.seconds());
}

void PreviewThumbnail::showEvent(QShowEvent* event)
{
    if (m_border && !m_themes.current().reducedMotion)
        m_clock.start();
    QWidget::showEvent(event);
}

void PreviewThumbnail::hideEvent(QHideEvent* event)
{
    m_clock.stop();
    QWidget::hideEvent(event);
}

void PreviewThumbnail::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        m_pressed = event->position().toPoint();
    else
        event->ignore();
}

void PreviewThumbnail::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_pressed)
        return;
    const QPoint moved = event->position().toPoint() - *m_pressed;
    if (moved.manhattanLength() < QGuiApplication::styleHints()->startDragDistance())
        return;
    m_pressed.reset();
    Q_EMIT dragged();
}

void PreviewThumbnail::mouseReleaseEvent(QMouseEvent* event)
{
    if (m_pressed && rect().contains(event->position().toPoint()))
        Q_EMIT clicked();
    m_pressed.reset();
}

void PreviewThumbnail::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter
        || event->key() == Qt::Key_Space)
        Q_EMIT clicked();
    else
        QWidget::keyPressEvent(event);
}
