// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/FloatingPanel.h"

/// A card that opens at a place on the desktop, has the keyboard while it is open, and closes by
/// Escape or a click elsewhere, as a menu does.
class PopupCard final : public QWidget {
    Q_OBJECT

public:
    /// @param name for screen readers
    PopupCard(const Surroundings& surroundings, const QString& name);

    /// What the card shows, at the size that it asks for. Takes it over.
    void host(QWidget* content);

    /// Below a place, or above it in the lower half of the screen; wholly within the work area.
    /// @param place points of the desktop, y down
    void openAt(QPoint place);

    QRect card() const; ///< In points of the desktop, y down.

Q_SIGNALS:
    void closed(); ///< Whoever or whatever closed it.

protected:
    void paintEvent(QPaintEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fit();

    const Surroundings m_surroundings;
    QWidget* m_content = nullptr;
    QPoint m_place;
};
