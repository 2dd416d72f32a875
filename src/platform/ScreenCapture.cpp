// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/ScreenCapture.h"

QList<WindowId> ownWindows(const QList<Window>& windows)
{
    QList<WindowId> own;
    for (const auto& window : windows)
        if (window.application.id == ownApplicationId)
            own.push_back(window.id);
    return own;
}
