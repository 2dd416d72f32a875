// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QPoint>
#include <QRect>

#include <utility>

/// Where the cards of the history are: groups below one another, each a heading above rows of cards
/// of equal size. Points of the whole content, y down; cards are counted through all groups.
class HistoryLayout final {
public:
    struct Metrics {
        int width = 0; ///< Of the content.
        int margin = 0; ///< At both sides and at the foot.
        int gap = 0; ///< Between cards, both ways.
        int least = 1; ///< Width of a card; what is left over widens them all alike.
        int cardHeight = 1;
        int headingHeight = 0;
        Qt::LayoutDirection direction = Qt::LeftToRight; ///< That cards follow one another in.

        bool operator==(const Metrics&) const = default;
    };
    enum class Move { Previous, Next, Up, Down, PageUp, PageDown, First, Last };
    static constexpr int none = -1;

    HistoryLayout() = default;
    /// @param sizes how many cards each group has; none has 0.
    HistoryLayout(const QList<int>& sizes, const Metrics& metrics);

    int count() const { return m_count; }
    int groups() const { return int(m_sections.size()); }
    int columns() const { return m_columns; }
    int height() const;

    QRect card(int index) const;
    int group(int index) const; ///< Of a card.
    int cardAt(QPoint at) const; ///< none where there is no card.

    /// Cards from first to below last that reach into this stretch.
    std::pair<int, int> cardsWithin(int top, int bottom) const;
    std::pair<int, int> groupsWithin(int top, int bottom) const;

    /// Of a group, as seen from this height on: it stays at the top as long as its cards are there.
    QRect heading(int group, int top) const;

    /// The card to go to from another one, which may be none.
    /// @param page points that a page is high.
    int moved(int index, Move move, int page) const;

private:
    struct Section {
        int first; ///< Card.
        int count;
        int top; ///< Of the heading.
        int bottom; ///< Of the last row, the gap below it included.
    };
    const Section& sectionOf(int index) const;
    int sectionAt(int y) const; ///< The last one that begins there or above; the first one above.
    int rowHeight() const { return m_metrics.cardHeight + m_metrics.gap; }
    int rows(const Section& section) const;
    int vertically(int index, int rowStep) const;
    int paged(int index, int distance) const;

    Metrics m_metrics;
    QList<Section> m_sections;
    int m_count = 0;
    int m_columns = 1;
};
