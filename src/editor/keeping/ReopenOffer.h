// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "editor/keeping/KeptEdits.h"
#include "widgets/FloatingPanel.h"

/// Offers what the program left behind, on a card in the corner that waits for an answer and is in
/// nobody's way. Main thread only.
class ReopenOffer final : public QObject {
    Q_OBJECT

public:
    /// @param open shows an edit in an editor.
    ReopenOffer(const Surroundings& surroundings, KeptEdits& edits, KeptEdits::Reopen open);
    ~ReopenOffer() override;

    /// Does nothing if nothing was left behind.
    void show();

private:
    void make();
    void close();
    void follow();

    const Surroundings m_surroundings;
    KeptEdits& m_edits;
    const KeptEdits::Reopen m_open;
    std::unique_ptr<FloatingPanel> m_panel; ///< None while nothing is shown.
};
