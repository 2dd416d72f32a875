// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/Displays.h"

const DisplayInfo* displayShowingMost(QRect native, const QList<DisplayInfo>& displays)
{
    const DisplayInfo* best = nullptr;
    qint64 most = 0;
    for (const auto& display : displays) {
        const QRect part = display.native & native;
        if (const qint64 pixels = qint64(part.width()) * part.height(); pixels > most) {
            most = pixels;
            best = &display;
        }
    }
    return best;
}
