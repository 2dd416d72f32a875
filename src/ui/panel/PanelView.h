// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/AppState.h"
#include "fun/Fun.h"
#include "history/HistoryStore.h"
#include "ui/panel/PanelRow.h"
#include "ui/panel/RecentActions.h"

#include <QVBoxLayout>

class PetRow;
class RecentStrip;

/// What the panel shows: the pet, the captures with their shortcuts, the last captures, and the way
/// to all other surfaces. Arrow keys go from one to the next, Return takes it.
class PanelView final : public QWidget {
    Q_OBJECT

public:
    struct Means {
        const Themes& themes;
        const Prefs& prefs;
        AppState& state;
        const Fun& fun;
        HistoryStore& history;
        RecentActions& recent;
        /// What is told of an update, and what a click on it does; either may be empty.
        std::function<QString()> updateNotice {};
        std::function<void()> showUpdate {};
    };

    explicit PanelView(const Means& means);

    void refresh(); ///< Before it is shown, and while it is when something changes.

    QSize sizeHint() const override;

Q_SIGNALS:
    void done(); ///< A row was taken, so the panel is to close first.

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    PanelRow* add(const QString& symbol, const QString& title, std::function<void()> act,
        PanelRow::Look look = PanelRow::Look::Plain);
    void addCaptures();
    void addPlaces();
    void addLine();
    void refreshCaptures();
    void step(int by);

    const Means m_means;
    QVBoxLayout* m_column;
    PetRow* m_pet;
    QList<std::pair<CaptureKind, PanelRow*>> m_captures;
    RecentStrip* m_recent;
    PanelRow* m_allow = nullptr;
    PanelRow* m_update = nullptr;
    PanelRow* m_editLast = nullptr;
    PanelRow* m_history = nullptr;
    PanelRow* m_gallery = nullptr;
};
