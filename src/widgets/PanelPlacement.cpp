// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/PanelPlacement.h"

#include "widgets/Theme.h"

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

QRect PanelPlacement::beside(const Screen& screen, QSize panel, QPoint place)
{
    const QRect area = screen.workArea.marginsRemoved(
        {Space::related, Space::related, Space::related, Space::related});
    const bool isAbove = place.y() > screen.frame.center().y();
    const auto within = [](int at, int length, int low, int high) {
        return std::max(low, std::min(at, high + 1 - length));
    };
    // Not under the pointer, which would press what comes to lie there.
    const int top = isAbove ? place.y() - Space::inner - panel.height() : place.y() + Space::inner;
    return {QPoint(within(place.x() - panel.width() / 2, panel.width(), area.left(), area.right()),
                within(top, panel.height(), area.top(), area.bottom())),
        panel};
}
