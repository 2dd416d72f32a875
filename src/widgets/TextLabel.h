// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Theme.h"

#include <QLabel>

/// Text in one of the theme's styles, which follows the theme. A single line that does not fit ends
/// in an ellipsis and tells the whole in its tooltip.
class TextLabel final : public QLabel {
    Q_OBJECT

public:
    enum class Role { Text, Secondary };
    enum class Lines { One, Wrapped };

    TextLabel(const Themes& themes, TextStyle style, Role role = Role::Text,
        Lines lines = Lines::One, QWidget* parent = nullptr);

    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void adoptTheme();

    const Themes& m_themes;
    const TextStyle m_style;
    const Role m_role;
};
