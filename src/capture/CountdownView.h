// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/FrameClock.h"
#include "widgets/Theme.h"

#include <QVariantAnimation>
#include <QWidget>

/// A large number in a ring that empties within each second, on 150 × 150 points. A click anywhere
/// cancels, unless it drags the card.
class CountdownView final : public QWidget {
    Q_OBJECT

public:
    CountdownView(const Themes& themes, int remaining, QWidget* parent = nullptr);

    /// The next number; the ring is full again.
    void setRemaining(int seconds);

    QSize sizeHint() const override;

Q_SIGNALS:
    void clicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void cancel();
    double grown() const; ///< By large letters.
    void paintRing(QPainter& painter) const;
    void paintNumber(QPainter& painter, int number, double opacity) const;

    const Themes& m_themes;
    int m_remaining;
    int m_before; ///< The number that fades away.
    bool m_isCancelled = false;
    QPoint m_pressed; ///< On the desktop.
    FrameClock m_second; ///< Since this number came.
    QVariantAnimation m_change; ///< 0 to 1, from one number to the next.
};
