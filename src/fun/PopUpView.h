// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "fun/FunRules.h"
#include "widgets/Theme.h"

#include <QWidget>

/// What a pop-up shows: an emoji beside a small title, what happened, and perhaps a detail. A click
/// on it is told.
class PopUpView final : public QWidget {
    Q_OBJECT

public:
    PopUpView(const Themes& themes, FunPopUp popUp, QWidget* parent = nullptr);

    QSize sizeHint() const override;

Q_SIGNALS:
    void clicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    const Themes& m_themes;
    const FunPopUp m_popUp;
};
