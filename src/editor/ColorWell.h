// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Popover.h"

#include <QAbstractButton>

/// Shows a colour, and lets the user choose another: among those that marks are made in, or any.
class ColorWell final : public QAbstractButton {
    Q_OBJECT

public:
    explicit ColorWell(const Surroundings& surroundings, QWidget* parent = nullptr);

    void setColor(const QColor& color);
    void open(const QWidget& anchor); ///< The choice.

    QSize sizeHint() const override;

Q_SIGNALS:
    void chosen(const QColor& color);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* swatches();
    void choose(const QColor& color);
    void openDialog();

    Surroundings m_surroundings;
    QColor m_color;
};
