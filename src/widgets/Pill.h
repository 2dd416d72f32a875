// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QRawFont>

class QPainter;

/// A line of white text on a dark ground with round ends: the label that floats over pictures. One
/// object draws any number of texts in its font. All lengths are points, y down.
class Pill final {
public:
    /// Whether digits may have different widths; a number that changes must not jump about.
    enum class Digits { AsInTheFont, EqualWidth };
    /// Which edge of the pill a given position means.
    enum class Edge { Top, Bottom };

    explicit Pill(const QFont& font, Digits digits = Digits::AsInTheFont);

    /// The desktop's font for interfaces.
    static QFont font(int size, QFont::Weight weight = QFont::Normal);

    QSizeF size(const QString& text) const;

    /// Where a pill of this size goes: its left edge and the given other edge at a position, but
    /// at least 6 points inside the view on every side.
    static QRectF placed(QPointF position, Edge edge, QSizeF size, QRectF view);

    /// @param box where it goes; of the size told before, perhaps widened to whole pixels.
    void draw(QPainter& painter, QRectF box, const QString& text) const;

private:
    struct Line {
        QList<quint32> glyphs; ///< Empty: the font lacks some, so the toolkit lays the text out.
        QList<QPointF> positions;
        double width = 0;
    };
    Line lineOf(const QString& text) const;

    QFont m_font;
    QFontMetricsF m_metrics;
    QRawFont m_glyphs; ///< Valid where digits are to have equal widths.
    double m_digitWidth = 0;
};
