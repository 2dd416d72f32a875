// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "history/HistoryStore.h"
#include "widgets/Theme.h"

#include <QWidget>

class QHBoxLayout;
class RecentActions;
class RecentThumbnail;

/// The last captures beside one another; nothing where there are none.
class RecentStrip final : public QWidget {
    Q_OBJECT

public:
    static constexpr int most = 4;

    RecentStrip(const Themes& themes, HistoryStore& history, RecentActions& actions);

    void refresh(); ///< Shows what the history has now.

Q_SIGNALS:
    void done(); ///< Something was begun with a capture.

private:
    const Themes& m_themes;
    HistoryStore& m_history;
    RecentActions& m_actions;
    QHBoxLayout* m_row;
    QList<RecentThumbnail*> m_thumbnails;
};
