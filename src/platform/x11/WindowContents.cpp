// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/x11/WindowContents.h"

#include "base/Words.h"

#include <xcb/composite.h>
#include <xcb/damage.h>

#include <QElapsedTimer>

#include <poll.h>

#include <algorithm>

namespace {

constexpr int longestRepaint = 400; // Milliseconds until a program counts as not answering.
constexpr int repaintPause = 25; // Milliseconds without drawing after which a repaint is over.

/// Whether another window on screen lies over some of it.
bool isCovered(X11Connection& connection, const X11Windows& windows, const X11Window& window)
{
    xcb_connection_t* xcb = connection.xcb();
    for (const auto above : windows.stack()) {
        if (above == window.topLevel)
            return false;
        const auto asked = xcb_get_geometry(xcb, above);
        const auto attributes = owned(
            xcb_get_window_attributes_reply(xcb, xcb_get_window_attributes(xcb, above), nullptr));
        const auto geometry = owned(xcb_get_geometry_reply(xcb, asked, nullptr));
        if (attributes && geometry && attributes->map_state == XCB_MAP_STATE_VIEWABLE
            && attributes->_class == XCB_WINDOW_CLASS_INPUT_OUTPUT
            && QRect(geometry->x, geometry->y, geometry->width, geometry->height)
                   .intersects(window.topLevelRect))
            return true;
    }
    return false;
}

/// Waits for the next event, whatever it is; false when none came in time.
bool awaitEvent(xcb_connection_t* xcb, int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (!xcb_connection_has_error(xcb)) {
        if (owned(xcb_poll_for_event(xcb)))
            return true;
        const int left = milliseconds - int(timer.elapsed());
        pollfd descriptor {xcb_get_file_descriptor(xcb), POLLIN, 0};
        if (left <= 0 || poll(&descriptor, 1, left) <= 0)
            return false;
    }
    return false;
}

} // namespace

Result<WindowContents> WindowContents::of(
    std::shared_ptr<X11Connection> connection, const X11Windows& windows, const X11Window& window)
{
    xcb_connection_t* xcb = connection->xcb();
    const auto version = owned(
        xcb_composite_query_version_reply(xcb, xcb_composite_query_version(xcb, 0, 4), nullptr));
    if (!version)
        return connection->failure(
            Words::tr("The display cannot capture a single window (no COMPOSITE)."));

    WindowContents contents(connection, window.topLevel);
    if (contents.name())
        return contents;
    if (!contents.redirectAndAwaitRepaint(isCovered(*connection, windows, window)))
        return connection->failure(Words::tr(
            "The window is covered and its program does not answer, so it cannot be captured."));
    if (!contents.name())
        return connection->failure(Words::tr("The window is gone."));
    return contents;
}

WindowContents::WindowContents(WindowContents&& other) noexcept
    : m_connection(std::move(other.m_connection))
    , m_topLevel(other.m_topLevel)
    , m_pixmap(std::exchange(other.m_pixmap, XCB_PIXMAP_NONE))
    , m_redirected(std::exchange(other.m_redirected, false))
{
}

WindowContents::~WindowContents()
{
    if (m_pixmap != XCB_PIXMAP_NONE)
        xcb_free_pixmap(m_connection->xcb(), m_pixmap);
    if (m_redirected)
        xcb_composite_unredirect_window(
            m_connection->xcb(), m_topLevel, XCB_COMPOSITE_REDIRECT_AUTOMATIC);
}

bool WindowContents::name()
{
    const xcb_pixmap_t pixmap = xcb_generate_id(m_connection->xcb());
    const auto refused = owned(xcb_request_check(m_connection->xcb(),
        xcb_composite_name_window_pixmap_checked(m_connection->xcb(), m_topLevel, pixmap)));
    if (!refused)
        m_pixmap = pixmap;
    return !refused;
}

/// Right after redirection the covered part still shows what covers it; the server has asked the
/// program to draw there, and the damage extension tells when it does.
bool WindowContents::redirectAndAwaitRepaint(bool covered)
{
    xcb_connection_t* xcb = m_connection->xcb();
    const auto version
        = owned(xcb_damage_query_version_reply(xcb, xcb_damage_query_version(xcb, 1, 1), nullptr));
    const xcb_damage_damage_t damage = xcb_generate_id(xcb);
    const bool watches = covered && version;
    if (watches) {
        m_connection->discardEvents();
        xcb_damage_create(xcb, damage, m_topLevel, XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
    }
    const auto refused = owned(xcb_request_check(xcb,
        xcb_composite_redirect_window_checked(xcb, m_topLevel, XCB_COMPOSITE_REDIRECT_AUTOMATIC)));
    m_redirected = !refused;

    bool repainted = !covered;
    if (watches) {
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < longestRepaint
            && awaitEvent(xcb, repainted ? repaintPause : longestRepaint - int(timer.elapsed())))
            repainted = true;
        xcb_damage_destroy(xcb, damage);
    }
    return m_redirected && repainted;
}
