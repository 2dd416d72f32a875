// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QPoint>
#include <QRect>
#include <QRectF>
#include <QString>

#include <cstdint>

using DisplayId = std::uint32_t;

/// One screen as it is now. Read anew for each capture: screens come, go and turn.
struct DisplayInfo {
    DisplayId id = 0;
    QString name;
    QRect native; ///< Device pixels of the whole desktop, y down.
    double scale = 1; ///< Device pixels per point.
    QRectF points; ///< Global points, y up, origin at the bottom left of the primary screen.

    friend bool operator==(const DisplayInfo&, const DisplayInfo&) = default;
};

/// The display that shows most of a native rectangle; null when none shows any of it.
const DisplayInfo* displayShowingMost(QRect native, const QList<DisplayInfo>& displays);

/// The screens and the pointer among them.
class Displays {
public:
    virtual ~Displays() = default;

    /// The primary screen first; empty when there is none.
    virtual QList<DisplayInfo> list() const = 0;

    /// Device pixels of the whole desktop, y down. Not rounded to points, as toolkit events are.
    virtual QPoint pointer() const = 0;
};
