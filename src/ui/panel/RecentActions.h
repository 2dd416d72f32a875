// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "capture/ShotActions.h"
#include "history/HistoryItem.h"

#include <QObject>

class QMenu;

/// Does with captures of the history what can be done with a capture. Their pictures are read on
/// another thread first.
class RecentActions final : public QObject {
    Q_OBJECT

public:
    /// @param revealTitle how showing a file in its folder is called here
    RecentActions(ShotActions actions, QString revealTitle);

    bool canEdit() const { return bool(m_actions.edit); }
    void edit(const HistoryItem& item);
    void copy(const HistoryItem& item);
    void pin(const HistoryItem& item);

    /// All that can be done, as a menu.
    void fill(QMenu& menu, const HistoryItem& item, QWidget* asking);

private:
    void with(const HistoryItem& item, std::function<void(const FinishedCapture&)> act);

    const ShotActions m_actions;
    const QString m_revealTitle;
};
