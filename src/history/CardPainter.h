// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "history/HistoryItem.h"
#include "widgets/Theme.h"

#include <QPixmap>

class QPainter;

/// How a card of the history looks: the capture in its well, and below it one line, or two where
/// something is looked for. Points.
class CardPainter final {
public:
    static constexpr int thumbnailHeight = 130;

    enum class Lines { One, Two };
    struct Card {
        QRect box;
        const QPixmap* picture = nullptr; ///< Null while it is not there.
        QSizeF points; ///< Of the capture.
        bool isGone = false; ///< There will be no picture.
        QString line;
        QString found; ///< Where a search has found it; empty without one.
        bool isSelected = false;
        bool hasFocus = false;
        double lift = 0; ///< 0 to 1, when the pointer is over it.
    };

    explicit CardPainter(const Theme& theme);

    static int height(const Theme& theme, Lines lines);
    static QRect well(QRect box); ///< The part of a card that the picture is fitted into.

    void paint(QPainter& painter, const Card& card) const;
    enum class Cards { StayBelow, PassBelow }; ///< Of a heading that moves with them, or stays.
    void paintHeading(
        QPainter& painter, QRect box, const QString& title, int margin, Cards cards) const;

    /// Marks what is found; the rest is as it stands.
    void setWanted(const QString& wanted) { m_wanted = wanted; }

private:
    void paintWell(QPainter& painter, const Card& card, QRectF well) const;
    void paintFound(QPainter& painter, QRect box, const QString& found) const;

    const Theme& m_theme;
    const QFont m_lineFont, m_strongFont, m_headingFont;
    QString m_wanted;
};
