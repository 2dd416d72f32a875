// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "fun/Fun.h"
#include "widgets/Theme.h"

#include <QScrollArea>

class AchievementCard;
class PetCard;
class QGridLayout;
class StreakCalendarView;
class TextLabel;

/// The pet, the streak and every achievement, unlocked or on its way. Follows what is counted.
class GalleryView final : public QScrollArea {
    Q_OBJECT

public:
    GalleryView(const Themes& themes, Fun& fun, QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void refresh();
    void adoptTheme();
    void arrange(int width);
    int focused() const; ///< Place of the card that the keyboard is on; −1 for none.

    const Themes& m_themes;
    Fun& m_fun;
    PetCard* m_pet;
    StreakCalendarView* m_calendar;
    TextLabel* m_count;
    QGridLayout* m_grid;
    QList<AchievementCard*> m_cards;
    int m_columns = 0;
};
