// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractNativeEventFilter>
#include <QPoint>

#include <array>
#include <optional>
#include <xcb/xcb.h>

class QMouseEvent;

/// Remembers where the last pointer events of the toolkit's connection happened, to the pixel: the
/// toolkit rounds them to points on their way to its windows.
class PointerTrail final : public QAbstractNativeEventFilter {
public:
    explicit PointerTrail(xcb_connection_t* xcb);
    ~PointerTrail() override;

    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

    /// Pixels of the root window; none if the event is no recent one of the server.
    /// @param rounded what the toolkit made of it, in pixels of the root window.
    std::optional<QPoint> find(const QMouseEvent& event, QPointF rounded) const;

private:
    enum class Kind { Move, Press, Release };
    struct Point {
        Kind kind = Kind::Move;
        xcb_timestamp_t time = 0;
        QPoint position;
    };

    void add(Kind kind, xcb_timestamp_t time, QPoint position);

    std::uint8_t m_inputExtension = 0; ///< Its major opcode.
    std::array<Point, 64> m_points;
    std::size_t m_count = 0; ///< Ever added.
};
