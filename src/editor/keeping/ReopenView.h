// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/GlassButton.h"

/// What a card shows that offers edits which the program left behind when it ended last.
class ReopenView final : public QWidget {
    Q_OBJECT

public:
    /// @param edits how many, at least one.
    ReopenView(const Themes& themes, qsizetype edits, QWidget* parent = nullptr);

    QSize sizeHint() const override;

Q_SIGNALS:
    void reopenWanted();
    void discardWanted();
    void laterWanted(); ///< To be asked again at the next start.

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QLayout* buttons();

    const Themes& m_themes;
};
