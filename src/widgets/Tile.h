// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Theme.h"

#include <QWidget>

/// A rounded ground that things which belong together stand on, in a window.
class Tile : public QWidget {
    Q_OBJECT

public:
    explicit Tile(const Themes& themes, QWidget* parent = nullptr);

protected:
    const Theme& theme() const { return m_themes.current(); }
    const Themes& themes() const { return m_themes; }

    void paintEvent(QPaintEvent* event) override;

private:
    const Themes& m_themes;
};
