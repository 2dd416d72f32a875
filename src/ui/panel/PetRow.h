// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "fun/Fun.h"
#include "widgets/Theme.h"

#include <QWidget>

/// The pet: how it looks, its name, what it says, and how far it is to the next level.
class PetRow final : public QWidget {
    Q_OBJECT

public:
    PetRow(const Themes& themes, const Fun& fun);

    void greet(); ///< Has it say something else, perhaps.

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void describe();
    void paintLevel(QPainter& painter, QRectF line) const;

    const Themes& m_themes;
    const Fun& m_fun;
    QString m_mood;
};
