// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QBrush>
#include <QRectF>

#include <optional>

class QPainter;

/// The animated border around a thumbnail. Each frame follows from the time alone.
class EffectBorder final {
public:
    enum class Effect {
        Comet, ///< A light with a tail runs along the border.
        Pulse, ///< The border's glow breathes.
        Spin, ///< The colours turn around the picture.
    };

    static constexpr double reach = 7; ///< Points that the glow reaches beyond the border.

    /// Of the preference; none for "none" and whatever is not known.
    static std::optional<Effect> effect(const QString& name);

    /// @param cornerRadius points
    EffectBorder(Effect effect, QList<QColor> colours, double cornerRadius);

    /// @param frame the outer edge of the picture, in points
    /// @param seconds since the border appeared
    void paint(QPainter& painter, QRectF frame, double seconds) const;

private:
    void paintComet(QPainter& painter, QRectF frame, double seconds) const;
    void paintPulse(QPainter& painter, QRectF frame, double seconds) const;
    void paintSpin(QPainter& painter, QRectF frame, double seconds) const;
    void stroke(QPainter& painter, QRectF frame, const QBrush& brush, double strength) const;

    Effect m_effect;
    QList<QColor> m_colours;
    double m_cornerRadius;
};
