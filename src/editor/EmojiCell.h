// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Theme.h"

#include <QAbstractButton>

#include <functional>

/// One emoji to choose, of 40 × 40 points. The arrow keys lead to its neighbours in a grid.
class EmojiCell final : public QAbstractButton {
public:
    using Action = std::function<void(const QString& emoji)>;

    EmojiCell(const Themes& themes, const QString& emoji, Action action, QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    const Themes& m_themes;
    const QString m_emoji;
};
