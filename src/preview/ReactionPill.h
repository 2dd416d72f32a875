// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "fun/FunRules.h"
#include "widgets/FrameClock.h"
#include "widgets/Theme.h"

#include <QWidget>

/// What the pet says to a capture and what the capture earned, hovering gently.
class ReactionPill final : public QWidget {
    Q_OBJECT

public:
    ReactionPill(const Themes& themes, const PetReaction& reaction);

    /// "+5 XP · slay"
    static QString text(const PetReaction& reaction);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    const Themes& m_themes;
    const QString m_text;
    FrameClock m_clock;
};
