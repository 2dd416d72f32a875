// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/PanelPlacement.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

QList<PanelPlacement::Screen> PanelPlacement::screens()
{
    QList<Screen> list;
    for (const QScreen* screen : QGuiApplication::screens())
        list.push_back({screen->geometry(), screen->availableGeometry()});
    return list;
}

PanelPlacement::Screen PanelPlacement::under(QPoint pointer, const QList<Screen>& screens)
{
    const auto found = std::ranges::find_if(
        screens, [pointer](const Screen& screen) { return screen.frame.contains(pointer); });
    if (found != screens.end())
        return *found;
    constexpr QRect usual(0, 0, 1440, 900);
    return screens.isEmpty() ? Screen {usual, usual} : screens.first();
}

QRect PanelPlacement::bottomRight(const Screen& screen, QSize panel, int margin)
{
    const QRect area = screen.workArea.adjusted(margin, margin, -margin, -margin);
    return {QPoint(area.right() + 1 - panel.width(), area.bottom() + 1 - panel.height()), panel};
}

QRect PanelPlacement::topRight(const Screen& screen, QSize panel, int margin)
{
    const QRect area = screen.workArea.adjusted(margin, margin, -margin, -margin);
    return {QPoint(area.right() + 1 - panel.width(), area.top()), panel};
}

QRect PanelPlacement::centred(const Screen& screen, QSize panel)
{
    const QSize left = screen.frame.size() - panel;
    return {screen.frame.topLeft() + QPoint(left.width() / 2, left.height() / 2), panel};
}
