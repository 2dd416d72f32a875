// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "fun/Achievement.h"
#include "widgets/Tile.h"

/// One achievement of the gallery: in colour once unlocked, before that grey with a ring that
/// closes. The keyboard can be on it, so that it is read out.
class AchievementCard final : public Tile {
    Q_OBJECT

public:
    AchievementCard(
        const Themes& themes, const Achievement& achievement, QWidget* parent = nullptr);

    void setStats(const FunStats& stats);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintText(QPainter& painter, int top) const;
    void paintRing(QPainter& painter, QRectF circle) const;

    const Achievement& m_achievement;
    bool m_isUnlocked = false;
    qint64 m_value = 0; ///< At most the goal.
};
