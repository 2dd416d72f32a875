// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "capture/CountdownView.h"

#include "base/Words.h"
#include "widgets/Accessible.h"
#include "widgets/Motion.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleHints>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr int side = 150;
constexpr double ringWidth = 3;
constexpr QRectF ring(27, Space::inner, 96, 96);
constexpr QRectF captionBox(
    0, ring.bottom() + Space::tiny, side, side - ring.bottom() - Space::inner);
constexpr double whenCancelled = 0.4; // Like a control that is disabled.

QString caption()
{
    return Words::tr("Click to cancel");
}

/// The painter enlarges.
QFont unscaled(const Theme& theme, TextStyle style)
{
    Theme usual = theme;
    usual.textScale = std::min(1.0, theme.textScale);
    return usual.font(style);
}

} // namespace

CountdownView::CountdownView(const Themes& themes, int remaining, QWidget* parent)
    : QWidget(parent)
    , m_themes(themes)
    , m_remaining(remaining)
    , m_before(remaining)
    , m_second([this](double) { update(); })
{
    Accessible::describe(*this, {QAccessible::Button, [this] { cancel(); }});
    setCursor(Qt::PointingHandCursor);
    m_change.setStartValue(0.0);
    m_change.setEndValue(1.0);
    m_change.setDuration(int(Motion::numberChange.count()));
    m_change.setEasingCurve(Motion::fadeCurve);
    connect(&m_change, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
    connect(&themes, &Themes::changed, this, qOverload<>(&QWidget::update));
    setRemaining(remaining);
}

void CountdownView::setRemaining(int seconds)
{
    m_before = std::exchange(m_remaining, seconds);
    setAccessibleName(u"%1, %2"_s.arg(seconds).arg(caption()));
    if (isVisible())
        Accessible::announce(*this);
    m_change.start();
    if (!m_themes.current().reducedMotion)
        m_second.start();
    update();
}

QSize CountdownView::sizeHint() const
{
    const int large = int(std::lround(side * grown()));
    return {large, large};
}

void CountdownView::paintEvent(QPaintEvent*)
{
    const Theme& theme = m_themes.current();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(m_isCancelled ? whenCancelled : 1);
    painter.scale(grown(), grown());
    paintRing(painter);
    const double changed = m_change.currentValue().toDouble();
    if (m_before != m_remaining)
        paintNumber(painter, m_before, 1 - changed);
    paintNumber(painter, m_remaining, m_before == m_remaining ? 1 : changed);
    painter.setFont(unscaled(theme, TextStyle::Caption));
    painter.setPen(theme.secondary);
    painter.drawText(captionBox, Qt::AlignHCenter | Qt::AlignVCenter, caption());
}

/// All of the card is as much larger as its letters.
double CountdownView::grown() const
{
    return std::max(1.0, m_themes.current().textScale);
}

/// Empties clockwise, from the top on.
void CountdownView::paintRing(QPainter& painter) const
{
    const Theme& theme = m_themes.current();
    constexpr int degree = 16; // As the toolkit counts them.
    const double left = m_second.isRunning() ? std::clamp(1 - m_second.seconds(), 0.0, 1.0) : 1;
    constexpr double half = ringWidth / 2;
    const QRectF line = ring.adjusted(half, half, -half, -half);
    painter.setPen(QPen(theme.fillPressed, ringWidth));
    painter.drawEllipse(line);
    painter.setPen(QPen(theme.accent, ringWidth, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(line, 90 * degree, int(left * 360 * degree));
}

void CountdownView::paintNumber(QPainter& painter, int number, double opacity) const
{
    const QString text = QString::number(number);
    QFont font = unscaled(m_themes.current(), TextStyle::Countdown);
    // More than two digits would not fit into the ring.
    const double room = ring.width() - 2 * (ringWidth + Space::related);
    if (const double width = QFontMetricsF(font).horizontalAdvance(text); width > room)
        font.setPixelSize(int(font.pixelSize() * room / width));
    QColor ink = m_themes.current().text;
    ink.setAlphaF(float(opacity));
    painter.setFont(font);
    painter.setPen(ink);
    // By what is seen of digits, which have nothing below their line.
    const QRectF seen = QFontMetricsF(font).tightBoundingRect(text);
    const double width = QFontMetricsF(font).horizontalAdvance(text);
    painter.drawText(ring.center() + QPointF(-width / 2, -seen.center().y()), text);
}

void CountdownView::mousePressEvent(QMouseEvent* event)
{
    m_pressed = event->globalPosition().toPoint();
    event->ignore(); // The card is dragged by it.
}

void CountdownView::mouseReleaseEvent(QMouseEvent* event)
{
    const QPoint moved = event->globalPosition().toPoint() - m_pressed;
    if (moved.manhattanLength() < QGuiApplication::styleHints()->startDragDistance())
        cancel();
    event->ignore();
}

void CountdownView::cancel()
{
    m_isCancelled = true;
    update();
    Q_EMIT clicked();
}

void CountdownView::hideEvent(QHideEvent* event)
{
    m_second.stop();
    QWidget::hideEvent(event);
}
