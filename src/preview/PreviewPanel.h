// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "fun/Fun.h"
#include "preview/PreviewView.h"
#include "widgets/FloatingPanel.h"

#include <memory>
#include <vector>

/// The cards that show what was just captured: at most one that is not fading away.
class PreviewPanel final {
public:
    /// @param revealTitle how showing a file in its folder is called here
    PreviewPanel(const Surroundings& surroundings, const Prefs& prefs, Fun& fun,
        ShotActions actions, QString revealTitle);
    ~PreviewPanel();

    /// Shows a new card in place of the one that is there.
    /// @param info one line about the capture
    void show(const FinishedCapture& capture, const QString& info);

    /// Hides every card at once.
    void closeAll();

private:
    void close(FloatingPanel* panel);

    const Surroundings m_surroundings;
    const Prefs& m_prefs;
    Fun& m_fun;
    const ShotActions m_actions;
    const QString m_revealTitle;
    std::vector<FloatingPanel*> m_panels; ///< Ours; each may be busy with an event when it goes.
};
