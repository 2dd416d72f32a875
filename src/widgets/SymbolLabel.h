// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Theme.h"

#include <QWidget>

/// A small symbol in the theme's colours, beside a text that says the same.
class SymbolLabel final : public QWidget {
    Q_OBJECT

public:
    enum class Role { Text, Failure };

    SymbolLabel(const Themes& themes, QString symbol, Role role = Role::Text);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Themes& m_themes;
    const QString m_symbol;
    const Role m_role;
};
