// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ScreenCapture.h"
#include "platform/freedesktop/DesktopEntries.h"
#include "platform/x11/OwnWindowProperty.h"
#include "platform/x11/X11Connection.h"

#include <QMargins>

#include <optional>
#include <span>

/// A client window together with what the window manager put around it.
struct X11Window {
    xcb_window_t client = 0;
    xcb_window_t topLevel = 0; ///< The child of the root window that holds the client.
    QRect clientRect; ///< Pixels of the root window, without the server-side border.
    QRect topLevelRect; ///< Pixels of the root window, with the border.
    QMargins ownShadow; ///< What a client-side decoration leaves around the frame for its shadow.
    int topLevelDepth = 0; ///< Bits; 32 means that it has an alpha channel.
    bool viewable = false;
    bool overrideRedirect = false; ///< Menus, tooltips, cards: nothing the manager knows of.

    /// Title bar included, shadow not; pixels of the root window.
    QRect frame() const;

private:
    friend class X11Windows;
    QMargins m_serverFrame;
};

/// What the server and the window manager tell about windows.
class X11Windows final {
public:
    explicit X11Windows(std::shared_ptr<X11Connection> connection)
        : m_connection(std::move(connection))
    {
    }

    /// Front first, hidden ones last.
    QList<Window> list();
    QHash<WindowId, int> frontToBackOrder();

    /// One window; none when it is gone.
    std::optional<Window> find(xcb_window_t window);

    /// Children of the root window, front first.
    std::vector<xcb_window_t> stack() const;

    /// The geometry of windows, in their order; those that vanished meanwhile have topLevel 0.
    std::vector<X11Window> locate(std::span<const xcb_window_t> windows);

private:
    struct Stacked {
        std::vector<xcb_window_t> windows; ///< Clients and unmanaged windows, front first.
        QHash<WindowId, int> positions;
    };
    Stacked stacked();
    QList<Window> describe(std::span<const X11Window> windows);
    std::vector<xcb_window_t> clients();
    std::vector<xcb_window_t> topLevels(std::span<const xcb_window_t> windows) const;

    std::shared_ptr<X11Connection> m_connection;
    DesktopEntries m_desktopEntries;
};
