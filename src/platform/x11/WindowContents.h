// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/X11Windows.h"

/// The off-screen pixels of a top-level window, complete even where others cover it. Where nothing
/// keeps them yet, the server is told to, and the window's program is given the time to repaint
/// what was covered; it fails rather than show the pixels of whatever covers the window.
class WindowContents final {
public:
    static Result<WindowContents> of(std::shared_ptr<X11Connection> connection,
        const X11Windows& windows, const X11Window& window);
    ~WindowContents();
    WindowContents(WindowContents&& other) noexcept;
    WindowContents& operator=(WindowContents&&) = delete;

    xcb_pixmap_t pixmap() const { return m_pixmap; }

private:
    WindowContents(std::shared_ptr<X11Connection> connection, xcb_window_t topLevel)
        : m_connection(std::move(connection))
        , m_topLevel(topLevel)
    {
    }
    bool name();
    bool redirectAndAwaitRepaint(bool covered);

    std::shared_ptr<X11Connection> m_connection;
    xcb_window_t m_topLevel;
    xcb_pixmap_t m_pixmap = XCB_PIXMAP_NONE;
    bool m_redirected = false;
};
