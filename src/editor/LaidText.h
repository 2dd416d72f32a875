// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QGlyphRun>
#include <QPainterPath>

#include <memory>
#include <vector>

class QPainter;

/// A text of one or several lines laid out, as outlines and colour emoji, ready to be drawn at any
/// size. Its unit is a hundredth of the font size, its origin the top left corner, y down. Lines
/// begin where their writing does, left or right.
///
/// Main thread only, as the toolkit's fonts.
class LaidText final {
public:
    static constexpr int em = 100; ///< Fonts are to be of so many pixels.

    enum class Lines { Natural, Centred };

    /// Texts laid out lately are kept.
    static std::shared_ptr<const LaidText> of(
        const QString& text, const QFont& font, Lines lines = Lines::Natural);

    LaidText(const QString& text, const QFont& font, Lines lines);

    QSizeF size() const { return m_size; } ///< Of the lines; ink may stick out.
    QRectF ink() const { return m_ink; }
    const QString& key() const { return m_key; } ///< Equal only for the same text in the same font.

    const QPainterPath& outline() const { return m_outline; } ///< All but the colour emoji.

    /// What one character has of the outline.
    struct Letter {
        qsizetype index; ///< Of the character, as people count them, in the whole text.
        QPainterPath outline;
    };
    const std::vector<Letter>& letters() const { return m_letters; }

    void drawEmoji(QPainter& painter) const;

private:
    struct Paragraph;
    void place(const Paragraph& paragraph, Lines lines, qsizetype firstIndex);
    QPainterPath outlineOf(const QList<QGlyphRun>& runs, QPointF offset);

    QString m_key;
    QSizeF m_size;
    QRectF m_ink;
    QPainterPath m_outline;
    std::vector<Letter> m_letters;
    QList<QGlyphRun> m_emoji;
};
