// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QRegion>
#include <QTransform>

/// Which part of a picture a view shows, and how large: from pixels of the picture to points of the
/// view and back, y down in both. A picture that is smaller than the view lies in its middle, one
/// that is larger leaves nothing of the view empty.
class CenteringClipView final {
public:
    static constexpr double leastMagnification = 0.05, mostMagnification = 8;

    /// @param devicePixelRatio of the view; the picture's corner lies on one of its pixels.
    void setView(QSize points, double devicePixelRatio);
    void setPicture(QSize pixels);

    double magnification() const { return m_magnification; } ///< Points per pixel.
    double devicePixelRatio() const { return m_devicePixelRatio; }

    /// Keeps what is shown at a point of the view there, as far as the picture reaches.
    void magnify(double magnification, QPointF keeping);

    /// Shows what lies further on; points of the view.
    void scrollTo(QPointF offset);
    QPointF offset() const { return m_offset; }
    QSizeF range() const; ///< How far offsets go, from 0.

    QSize view() const { return m_view; } ///< Points.
    QSize picture() const { return m_picture; } ///< Pixels.
    QSizeF content() const { return QSizeF(m_picture) * m_magnification; } ///< The picture, points.
    QPointF origin() const; ///< Of the picture in the view.
    QPointF toPicture(QPointF point) const { return (point - origin()) / m_magnification; }
    QPointF toView(QPointF pixel) const { return pixel * m_magnification + origin(); }
    QRectF toView(const QRectF& pixels) const;
    QTransform transform() const; ///< From the picture to the view.

private:
    QSize m_view, m_picture;
    double m_devicePixelRatio = 1;
    double m_magnification = 1;
    QPointF m_offset;
};
