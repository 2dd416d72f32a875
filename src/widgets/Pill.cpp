// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/Pill.h"

#include <QGlyphRun>
#include <QGuiApplication>
#include <QPainter>

#include <algorithm>

namespace {

constexpr QSizeF padding(18, 8); // Both sides together.
constexpr double inset = 9; // Of the text from the left.
constexpr double foot = 4; // Below the text.
constexpr double margin = 6; // To the edges of the view.
constexpr float groundOpacity = 0.82f;
constexpr float groundLevel = 0.08f; // Of white.

/// Moves an extent between two bounds; where it does not fit, it begins at the first.
double between(double start, double extent, double least, double most)
{
    return std::max(least, std::min(start, most - extent));
}

} // namespace

Pill::Pill(const QFont& font, Digits digits)
    : m_font(font)
    , m_metrics(font)
{
    if (digits == Digits::AsInTheFont)
        return;
    m_glyphs = QRawFont::fromFont(font);
    const auto indexes = m_glyphs.glyphIndexesForString(QStringLiteral("0123456789"));
    for (const QPointF& advance : m_glyphs.advancesForGlyphIndexes(indexes))
        m_digitWidth = std::max(m_digitWidth, advance.x());
}

QFont Pill::font(int size, QFont::Weight weight)
{
    QFont font = QGuiApplication::font();
    font.setPixelSize(size);
    font.setWeight(weight);
    return font;
}

QSizeF Pill::size(const QString& text) const
{
    return QSizeF(lineOf(text).width, m_metrics.height()) + padding;
}

QRectF Pill::placed(QPointF position, Edge edge, QSizeF size, QRectF view)
{
    const double top = edge == Edge::Top ? position.y() : position.y() - size.height();
    const QRectF inner = view.adjusted(margin, margin, -margin, -margin);
    return {{between(position.x(), size.width(), inner.left(), inner.right()),
                between(top, size.height(), inner.top(), inner.bottom())},
        size};
}

void Pill::draw(QPainter& painter, QRectF box, const QString& text) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgbF(groundLevel, groundLevel, groundLevel, groundOpacity));
    painter.drawRoundedRect(box, box.height() / 2, box.height() / 2);

    const Line line = lineOf(text);
    const double widened = box.width() - padding.width() - line.width;
    const QPointF start(
        box.left() + inset + widened / 2, box.bottom() - foot - m_metrics.descent());
    painter.setPen(Qt::white);
    if (line.glyphs.isEmpty()) {
        painter.setFont(m_font);
        painter.drawText(start, text);
    } else {
        QGlyphRun run;
        run.setRawFont(m_glyphs);
        run.setGlyphIndexes(line.glyphs);
        run.setPositions(line.positions);
        painter.drawGlyphRun(start, run);
    }
    painter.restore();
}

Pill::Line Pill::lineOf(const QString& text) const
{
    Line line;
    if (m_glyphs.isValid())
        line.glyphs = m_glyphs.glyphIndexesForString(text);
    if (line.glyphs.size() != text.size() || line.glyphs.contains(0u))
        return {{}, {}, m_metrics.horizontalAdvance(text)};
    const auto advances = m_glyphs.advancesForGlyphIndexes(line.glyphs);
    for (qsizetype i = 0; i < text.size(); ++i) {
        const double cell = text[i].isDigit() ? m_digitWidth : advances[i].x();
        line.positions.push_back({line.width + (cell - advances[i].x()) / 2, 0});
        line.width += cell;
    }
    return line;
}
