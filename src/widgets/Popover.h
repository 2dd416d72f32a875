// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/SurfaceTraits.h"
#include "widgets/FloatingPanel.h"

/// A small card that opens at a control and closes by a click elsewhere or Escape. Deletes itself
/// when it has closed.
class Popover final : public QWidget {
    Q_OBJECT

public:
    /// Shows this in the card, at the size that it asks for. Takes it over.
    /// @param name for screen readers
    Popover(
        const Surroundings& surroundings, const QString& name, QWidget* content, QWidget* parent);

    /// Opens it below a control and aligned with its middle, or above where there is no room.
    void openAt(const QWidget& control);

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    QMargins margins() const;

    Surroundings m_surroundings;
    QWidget* m_content;
};
