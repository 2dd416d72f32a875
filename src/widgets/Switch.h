// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Theme.h"

#include <QCheckBox>
#include <QVariantAnimation>

/// What settings are turned on and off with. It has no text of its own: whoever places it gives it
/// the accessible name of its row.
class Switch final : public QCheckBox {
    Q_OBJECT

public:
    explicit Switch(const Themes& themes, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    bool hitButton(const QPoint& place) const override { return rect().contains(place); }

private:
    void move();

    const Themes& m_themes;
    QVariantAnimation m_on; ///< 0 to 1.
};
