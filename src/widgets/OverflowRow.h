// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/GlassButton.h"

#include <QMenu>

#include <functional>
#include <vector>

/// A row of controls. Where it is too narrow, those that matter least hide in a menu at its end.
class OverflowRow final : public QWidget {
    Q_OBJECT

public:
    /// Adds to the menu what a control does, while that is hidden.
    using Entry = std::function<void(QMenu& menu)>;
    enum class Gap {
        Related,
        Group
    }; ///< To the control before. Our buttons have room of their own.

    explicit OverflowRow(const Themes& themes, QWidget* parent = nullptr);

    /// @param rank the lowest hides first
    void add(QWidget* control, Gap gap, int rank, Entry entry);

    /// The control if it shows, else the button of the menu: where something may open.
    QWidget& anchor(QWidget& control);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

private:
    struct Item {
        QWidget* control;
        int gap;
        int rank;
        Entry entry;
    };
    void place();
    int widthOf(const Item& item) const;
    void openMenu();

    GlassButton* m_more;
    std::vector<Item> m_items;
};

namespace OverflowRules {

struct Control {
    int width; ///< Points.
    int gap; ///< To the control before, points.
    int rank;
};

/// Which controls show in a row of this width, in points. If any hides, the row ends in a button.
/// The one with the highest rank always shows.
std::vector<bool> shown(const std::vector<Control>& controls, int width, Control button);

} // namespace OverflowRules
