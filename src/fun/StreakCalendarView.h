// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "fun/StreakCalendar.h"
#include "widgets/Tile.h"

#include <QLocale>

/// The last weeks as dots, a column each: the more captures, the stronger.
class StreakCalendarView final : public Tile {
    Q_OBJECT

public:
    explicit StreakCalendarView(const Themes& themes, QWidget* parent = nullptr);

    void setDays(const QList<StreakCalendar::Day>& days, int streak, qint64 best);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    void paintTitle(QPainter& painter) const;
    void paintMonths(QPainter& painter) const;
    void paintDot(QPainter& painter, int day) const;
    QRectF dot(int day) const; ///< In points of the widget.
    bool isDetailBelow() const;
    QSize sizeOfDots() const;
    int dotsTop() const;
    QString told(const StreakCalendar::Day& day) const;

    QList<StreakCalendar::Day> m_days;
    QString m_title, m_detail;
    const QLocale m_locale;
};
