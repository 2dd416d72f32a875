// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/panel/PanelView.h"
#include "widgets/PopupCard.h"

#include <QElapsedTimer>

#include <memory>
#include <optional>

/// The panel that a click on the tray's icon opens, or another start of the program. Made when it
/// is first opened.
class MenuPanel final : public QObject {
    Q_OBJECT

public:
    MenuPanel(const Surroundings& surroundings, PanelView::Means means);

    /// @param icon where the tray's icon is, in points of the desktop, y down; where that is not
    /// known, it opens at the pointer
    void open(std::optional<QPointF> icon);

    /// Closes it if it is open, also by the very click that asks for this; else opens it.
    void toggle(std::optional<QPointF> icon);

    const PopupCard* card() const { return m_card.get(); } ///< Null before it was opened.

private:
    const Surroundings m_surroundings;
    const PanelView::Means m_means;
    std::unique_ptr<PopupCard> m_card;
    PanelView* m_view = nullptr;
    QElapsedTimer m_sinceClosed;
};
