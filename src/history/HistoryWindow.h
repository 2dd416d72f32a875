// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "history/HistoryActions.h"
#include "history/HistoryView.h"

#include <QPointer>

/// The one window of the history. What it needs goes when it is closed. Lives on the main thread.
class HistoryWindow final : public QObject {
    Q_OBJECT

public:
    HistoryWindow(HistoryActions::Means means, TextIndex& texts);
    ~HistoryWindow() override;

    void show(); ///< Opens it, or brings it to the front.

Q_SIGNALS:
    void captureWanted();

private:
    const Themes& m_themes;
    HistoryStore& m_store;
    TextIndex& m_texts;
    HistoryActions m_actions;
    QPointer<HistoryView> m_view; ///< None while it is closed.
};
