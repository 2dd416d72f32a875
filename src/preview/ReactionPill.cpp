// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "preview/ReactionPill.h"

#include <QPainter>

#include <cmath>
#include <numbers>

using namespace Qt::StringLiterals;

namespace {

constexpr double sway = 1.5; // Points up and down.
constexpr double swayPeriod = 1.8; // Seconds.
constexpr int padding = Space::related;
constexpr int pillHeight = 22;

} // namespace

ReactionPill::ReactionPill(const Themes& themes, const PetReaction& reaction)
    : m_themes(themes)
    , m_text(text(reaction))
    , m_clock([this](double) { update(); })
{
    setAccessibleName(m_text);
    setToolTip(m_text);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    connect(&themes, &Themes::changed, this, qOverload<>(&QWidget::update));
}

QString ReactionPill::text(const PetReaction& reaction)
{
    return u"+%1 XP · %2"_s.arg(QString::number(reaction.xp), reaction.line);
}

QSize ReactionPill::sizeHint() const
{
    const QFontMetrics metrics(m_themes.current().font(TextStyle::Caption));
    const int height = std::max(pillHeight, metrics.height() + Space::related);
    return {metrics.horizontalAdvance(m_text) + 2 * padding + 1, height + int(2 * std::ceil(sway))};
}

void ReactionPill::paintEvent(QPaintEvent*)
{
    const Theme& theme = m_themes.current();
    const double phase = 2 * std::numbers::pi * m_clock.seconds() / swayPeriod;
    const double offset = theme.reducedMotion ? 0 : -sway * std::sin(phase);
    const double room = std::ceil(sway);
    const QRectF box = QRectF(rect()).adjusted(0, room + offset, 0, offset - room);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme.accent);
    painter.drawRoundedRect(box, box.height() / 2, box.height() / 2);
    painter.setFont(theme.font(TextStyle::Caption));
    painter.setPen(theme.onAccent);
    const QRectF inner = box.adjusted(padding, 0, -padding, 0);
    const QFontMetricsF metrics(painter.font());
    painter.drawText(
        inner, Qt::AlignCenter, metrics.elidedText(m_text, Qt::ElideRight, inner.width() + 1));
}

void ReactionPill::showEvent(QShowEvent* event)
{
    if (!m_themes.current().reducedMotion)
        m_clock.start();
    QWidget::showEvent(event);
}

void ReactionPill::hideEvent(QHideEvent* event)
{
    m_clock.stop();
    QWidget::hideEvent(event);
}
