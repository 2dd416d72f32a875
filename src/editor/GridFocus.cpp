// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/GridFocus.h"

#include "base/ArrowKeys.h"

#include <QWidget>

#include <limits>

bool GridFocus::move(QWidget& from, int key)
{
    const QPoint way = directionOf(key);
    if (way.isNull())
        return false;
    constexpr int aside = 3; // What lies off the way is that much further.
    QWidget* nearest = nullptr;
    int least = std::numeric_limits<int>::max();
    for (auto* each : from.parentWidget()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        const QPoint by = each->geometry().center() - from.geometry().center();
        const int along = QPoint::dotProduct(by, way);
        const int off = std::abs(by.x() * way.y()) + std::abs(by.y() * way.x());
        const bool isRow = way.y() != 0 || off < from.height();
        if (each->focusPolicy() == Qt::NoFocus || !each->isVisible() || along <= 0 || !isRow)
            continue;
        if (const int distance = along + aside * off; distance < least) {
            least = distance;
            nearest = each;
        }
    }
    if (nearest) {
        from.setFocusPolicy(Qt::ClickFocus);
        nearest->setFocusPolicy(Qt::StrongFocus);
        nearest->setFocus(Qt::TabFocusReason);
    }
    return true;
}
