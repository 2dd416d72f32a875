// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Theme.h"

#include <QListWidget>

/// The list of a window's pages at its left, chosen from by a click or the arrow keys.
class Sidebar final : public QListWidget {
    Q_OBJECT

public:
    explicit Sidebar(const Themes& themes, QWidget* parent = nullptr);

    void addPage(const QString& symbol, const QString& name);

private:
    void adoptTheme();

    const Themes& m_themes;
};
