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
struct Display {
    DisplayId id = 0;
    QString name;
    QRect native; ///< Device pixels of the whole desktop, y down.
    double scale = 1; ///< Device pixels per point.
    QRectF points; ///< Global points, y up, origin at the bottom left of the primary screen.

    friend bool operator==(const Display&, const Display&) = default;
};

/// The display that shows most of a native rectangle; null when none shows any of it.
const Display* displayShowingMost(QRect native, const QList<Display>& displays);

/// The screens and the pointer among them.
class Displays {
public:
    virtual ~Displays() = default;

    /// The primary screen first; empty when there is none.
    virtual QList<Display> list() const = 0;

    /// Device pixels of the whole desktop, y down. Not rounded to points, as toolkit events are.
    virtual QPoint pointer() const = 0;
};
