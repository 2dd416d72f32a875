// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "preview/EffectBorder.h"

#include "preview/EffectPalette.h"

#include <QPainter>
#include <QPainterPath>

#include <array>
#include <cmath>
#include <numbers>

using namespace Qt::StringLiterals;

namespace {

// Seconds.
constexpr double cometRound = 2.6;
constexpr double pulseBreath = 2.2;
constexpr double spinTurn = 3.2;

constexpr double cometLength = 0.34; // Of the way around.
constexpr int cometStops = 24;

/// A line and the glow around it: few strokes, each wider and fainter, look like a blur and cost
/// far less.
struct Layer {
    double width; // Points.
    double opacity;
};
constexpr std::array layers {
    Layer {2 * EffectBorder::reach, 0.06}, Layer {9, 0.10}, Layer {5.5, 0.22}, Layer {2.2, 1.0}};

QColor faded(QColor colour, double strength)
{
    colour.setAlphaF(float(colour.alphaF() * strength));
    return colour;
}

/// The way around a rounded rectangle as a function of its length, clockwise from the middle of the
/// upper edge; much faster than asking a path.
class Round {
public:
    Round(QRectF box, double radius)
        : m_box(box)
        , m_radius(radius)
        , m_arc(std::numbers::pi / 2 * radius)
        , m_width(box.width() - 2 * radius)
        , m_height(box.height() - 2 * radius)
    {
    }

    double length() const { return 2 * (m_width + m_height) + 4 * m_arc; }

    QPointF at(double along) const
    {
        along = std::fmod(along, length());
        if (along < 0)
            along += length();
        const double halfWidth = m_width / 2;
        const QRectF inner = m_box.adjusted(m_radius, m_radius, -m_radius, -m_radius);
        const std::array<double, 9> parts {
            halfWidth, m_arc, m_height, m_arc, m_width, m_arc, m_height, m_arc, halfWidth};
        std::size_t part = 0;
        while (part + 1 < parts.size() && along > parts[part])
            along -= parts[part++];
        switch (part) {
        case 0:
            return {m_box.center().x() + along, m_box.top()};
        case 1:
            return corner(inner.topRight(), -std::numbers::pi / 2, along);
        case 2:
            return {m_box.right(), inner.top() + along};
        case 3:
            return corner(inner.bottomRight(), 0, along);
        case 4:
            return {inner.right() - along, m_box.bottom()};
        case 5:
            return corner(inner.bottomLeft(), std::numbers::pi / 2, along);
        case 6:
            return {m_box.left(), inner.bottom() - along};
        case 7:
            return corner(inner.topLeft(), std::numbers::pi, along);
        default:
            return {inner.left() + along, m_box.top()};
        }
    }

private:
    QPointF corner(QPointF centre, double start, double along) const
    {
        const double angle = m_radius > 0 ? start + along / m_radius : start;
        return centre + m_radius * QPointF(std::cos(angle), std::sin(angle));
    }

    QRectF m_box;
    double m_radius, m_arc, m_width, m_height;
};

} // namespace

std::optional<EffectBorder::Effect> EffectBorder::effect(const QString& name)
{
    if (name == u"comet"_s)
        return Effect::Comet;
    if (name == u"pulse"_s)
        return Effect::Pulse;
    if (name == u"spin"_s)
        return Effect::Spin;
    return std::nullopt;
}

EffectBorder::EffectBorder(Effect effect, QList<QColor> colours, double cornerRadius)
    : m_effect(effect)
    , m_colours(std::move(colours))
    , m_cornerRadius(cornerRadius)
{
}

void EffectBorder::paint(QPainter& painter, QRectF frame, double seconds) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    switch (m_effect) {
    case Effect::Comet:
        paintComet(painter, frame, seconds);
        break;
    case Effect::Pulse:
        paintPulse(painter, frame, seconds);
        break;
    case Effect::Spin:
        paintSpin(painter, frame, seconds);
        break;
    }
    painter.restore();
}

void EffectBorder::paintComet(QPainter& painter, QRectF frame, double seconds) const
{
    stroke(painter, frame, faded(m_colours.first(), 0.28), 0.6);
    const Round round(frame, m_cornerRadius);
    const double length = round.length();
    const double head = seconds / cometRound * length;
    const QPointF centre = frame.center();
    // Counter-clockwise from the right, a whole turn being 1, as the toolkit counts.
    const auto turn = [centre](QPointF at) { return QLineF(centre, at).angle() / 360; };
    const double headTurn = turn(round.at(head));

    // The light runs along the border at one speed, whatever angle that is.
    QConicalGradient gradient(centre, headTurn * 360);
    for (int i = 0; i <= cometStops; ++i) {
        const double behind = double(i) / cometStops; // 0 at the head, 1 at the end of the tail.
        const double place = turn(round.at(head - behind * cometLength * length)) - headTurn;
        const double along = (1 - behind) * double(m_colours.size() - 1) / double(m_colours.size());
        gradient.setColorAt(place - std::floor(place),
            faded(EffectPalette::at(m_colours, along), (1 - behind) * (1 - behind)));
    }
    gradient.setColorAt(1, Qt::transparent);
    stroke(painter, frame, gradient, 1);
    painter.setPen(Qt::NoPen);
    painter.setBrush(faded(Qt::white, 0.9));
    painter.drawEllipse(round.at(head), 1.6, 1.6);
}

void EffectBorder::paintPulse(QPainter& painter, QRectF frame, double seconds) const
{
    const double turn = seconds / pulseBreath;
    const double breath = 0.5 - 0.5 * std::cos(turn * 2 * std::numbers::pi);
    QLinearGradient gradient(frame.topLeft(), frame.bottomRight());
    for (qsizetype i = 0; i < m_colours.size(); ++i)
        gradient.setColorAt(
            m_colours.size() > 1 ? double(i) / double(m_colours.size() - 1) : 0, m_colours[i]);
    stroke(painter, frame, gradient, 0.35 + 0.65 * breath);
}

void EffectBorder::paintSpin(QPainter& painter, QRectF frame, double seconds) const
{
    QConicalGradient gradient(frame.center(), -std::fmod(seconds / spinTurn, 1.0) * 360);
    const auto count = m_colours.size();
    for (qsizetype i = 0; i <= count; ++i) // The first colour again, so that there is no seam.
        gradient.setColorAt(double(i) / double(count), m_colours[i % count]);
    stroke(painter, frame, gradient, 0.9);
}

void EffectBorder::stroke(
    QPainter& painter, QRectF frame, const QBrush& brush, double strength) const
{
    for (const Layer& layer : layers) {
        painter.setOpacity(layer.opacity * strength);
        painter.setPen(QPen(brush, layer.width));
        painter.drawRoundedRect(frame, m_cornerRadius, m_cornerRadius);
    }
    painter.setOpacity(1);
}
