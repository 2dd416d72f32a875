// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"
#include "capture/Region.h"

#include <optional>

/// What a key means to a selection.
enum class OverlayKey {
    Take, ///< Ends with the selection, if there is one.
    WholeScreen,
    Cancel,
    FirstCorner, ///< Begins a drag at the pointer without a button.
    NextWindow,
    PreviousWindow,
};

/// What one screen shows of a selection, in device pixels of that screen, y down.
struct OverlayScene {
    QRect selection; ///< Shown undimmed; empty: none.
    bool dragging = false; ///< Else the selection is a window that a click would take.
    std::optional<QPoint> pointer; ///< While it is on this screen.

    friend bool operator==(const OverlayScene&, const OverlayScene&) = default;
};

/// A selection over all screens as it goes on: mouse and keys come in, what to show and finally one
/// answer come out. Positions are device pixels of the whole desktop, y down.
class OverlayModel final {
public:
    /// @param question its screens are not empty.
    OverlayModel(const RegionQuestion& question, QPoint pointer);

    void move(QPoint pointer);
    void press(QPoint pointer);
    void release(QPoint pointer);
    void pressRight(); ///< Abandons a drag, else cancels.
    void setSquare(bool square) { m_square = square; }
    void key(OverlayKey key);

    /// Where it was last heard to be.
    QPoint pointer() const { return active().frozen.display.native.topLeft() + m_pointer; }

    /// Where the pointer comes to by a step in pixels; it stays on its screen.
    QPoint stepped(QPoint step) const;

    /// The screen that the pointer is on, or from which it is dragged: the one that keys mean.
    qsizetype activeScreen() const { return m_screen; }
    OverlayScene scene(qsizetype screen) const;

    /// The answer, once there is one; nothing changes it any more.
    const std::optional<Result<RegionResult>>& outcome() const { return m_outcome; }

private:
    struct Screen {
        FrozenScreen frozen;
        QList<QRect> windows; ///< Front-most first.
    };

    const Screen& active() const { return m_screens[m_screen]; }
    bool isOnScreen() const { return QRect({}, active().frozen.image.size()).contains(m_pointer); }
    void follow(QPoint pointer);
    void walk(qsizetype step);
    QRect selection() const; ///< Empty: none.
    void finish(Result<RegionResult> result);
    void finish(QRect selected);

    QList<Screen> m_screens;
    qsizetype m_screen = 0;
    QPoint m_pointer; ///< On the active screen, perhaps outside of it.
    std::optional<QPoint> m_start; ///< Where a drag began; none while there is none.
    std::optional<QRect> m_hover; ///< The window that a click would take.
    bool m_square = false;
    std::optional<Result<RegionResult>> m_outcome;
};
