// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Accessible.h"

class HistoryGrid;

/// The cards of a grid, in words.
class AccessibleCards final : public AccessibleParts {
public:
    explicit AccessibleCards(HistoryGrid& grid)
        : m_grid(grid)
    {
    }

    int count() const override;
    int current() const override;
    AccessiblePart part(int index) const override;
    int partAt(QPoint place) const override;
    void goTo(int index) override;
    void press(int index) override;

private:
    HistoryGrid& m_grid;
};
