// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "history/CardPainter.h"
#include "history/CardPictures.h"
#include "history/CardSelection.h"
#include "history/HistoryCatalogue.h"
#include "history/HistoryLayout.h"
#include "history/HistoryStore.h"

#include <QAbstractScrollArea>
#include <QVariantAnimation>

#include <functional>

/// The cards of the history in days, below one another. However many there are, only what is seen
/// is laid hands on. A click opens; with Ctrl and Shift, or from the keyboard, cards are selected.
class HistoryGrid final : public QAbstractScrollArea {
    Q_OBJECT

public:
    /// The text that was read in a capture.
    using TextOf = std::function<QString(const QString& id)>;

    HistoryGrid(const Themes& themes, HistoryStore& store, HistoryCatalogue& catalogue,
        TextOf textOf, QWidget* parent = nullptr);

    /// The catalogue shows others. What is seen stays where it is, as far as it is still there.
    void refresh();

    QList<HistoryItem> selected() const; ///< In the order of the cards.

    /// Small buttons over the card under the pointer, if any. Takes the widget over.
    void setHoverActions(QWidget* actions);
    std::optional<HistoryItem> hovered() const;

Q_SIGNALS:
    void opened(const HistoryItem& item);
    void menuWanted(QPoint at); ///< Of the selection; in points of the desktop.
    void dragWanted(); ///< Of the selection.
    void keyUnused(QKeyEvent* event);

protected:
    bool viewportEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    friend class AccessibleCards;

    void layOut();
    void anchor();
    void returnToAnchor();
    void adoptTheme();
    int top() const; ///< Of what is seen, in the content.
    QRect seen(QRect content) const; ///< In the viewport.
    QRect inked(int index) const; ///< What a card is painted on, in the viewport.
    const HistoryItem& item(int index) const { return *m_catalogue.shown()[index]; }
    QStringList ids() const; ///< Of all cards, in their order.
    void paintCard(QPainter& painter, const CardPainter& cards, int index);
    const QPixmap* picture(const HistoryItem& item, QRect box);
    void arrived(const QString& id, const Thumbnail& thumbnail);
    void choose(int index, CardSelection::How how);
    void bringIntoView(int index);
    void hover(int index);

    const Themes& m_themes;
    HistoryStore& m_store;
    HistoryCatalogue& m_catalogue;
    const TextOf m_textOf;
    QList<DayGroup> m_groups;
    HistoryLayout m_layout;
    CardSelection m_selection;
    CardPictures m_pictures;
    std::pair<int, double> m_fitted; ///< Width and scale that the pictures are made for.
    QString m_anchor; ///< A card that stays where it is; empty at the very top.
    int m_anchorTop = 0; ///< Where, in the viewport.
    bool m_isReturning = false; ///< To the anchor: it is not the user who scrolls.
    QSet<QString> m_gone; ///< Whose file cannot be read.
    QWidget* m_hoverActions = nullptr;
    QVariantAnimation m_lift; ///< 0 to 1, of the card under the pointer.
    int m_hovered = HistoryLayout::none;
    int m_pressed = HistoryLayout::none;
    QPoint m_pressedAt;
};
