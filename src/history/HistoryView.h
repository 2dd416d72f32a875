// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "history/HistoryCatalogue.h"
#include "history/HistoryStore.h"
#include "widgets/Theme.h"

#include <QTimer>
#include <QWidget>

class EmptyState;
class HistoryActions;
class HistoryGrid;
class QLineEdit;
class QStackedLayout;
class TextIndex;

/// The history as a whole: a field to search it, what can be done with all of it, and the captures
/// day by day. Follows the store.
class HistoryView final : public QWidget {
    Q_OBJECT

public:
    using Calendar = std::function<DayCalendar()>;

    struct Means {
        const Themes& themes;
        HistoryStore& store;
        HistoryActions& actions;
        TextIndex& texts;
        Calendar calendar = DayCalendar::ofUser;
    };

    explicit HistoryView(const Means& means, QWidget* parent = nullptr);

    void setQuery(const QString& query);

Q_SIGNALS:
    void captureWanted(); ///< The user would like to take a first one.

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLayout* bar();
    QWidget* hoverActions();
    void connectGrid();
    void adoptItems();
    void refresh();
    void followCalendar();
    void openMenu(QPoint at);
    void useKey(QKeyEvent& event);

    const Means m_means;
    HistoryCatalogue m_catalogue;
    QLineEdit* m_search;
    QWidget* m_clear; ///< Of all history.
    HistoryGrid* m_grid;
    EmptyState* m_noCaptures;
    EmptyState* m_noMatch;
    QStackedLayout* m_pages;
    QTimer m_preparing;
    QTimer m_clock; ///< For the day that ends.
};
