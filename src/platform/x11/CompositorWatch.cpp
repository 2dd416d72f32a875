// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/x11/CompositorWatch.h"

#include "platform/x11/X11Connection.h"

#include <QGuiApplication>

#include <xcb/xfixes.h>

CompositorWatch::CompositorWatch(xcb_connection_t* xcb, std::function<void()> changed)
    : m_xcb(xcb)
    , m_changed(std::move(changed))
{
    // The toolkit works on the first screen of the server.
    constexpr char name[] = "_NET_WM_CM_S0";
    const auto atom = owned(
        xcb_intern_atom_reply(xcb, xcb_intern_atom(xcb, 0, sizeof name - 1, name), nullptr));
    if (atom)
        m_selection = atom->atom;
    const auto* const fixes = xcb_get_extension_data(xcb, &xcb_xfixes_id);
    if (fixes && fixes->present) {
        m_selectionEvent = std::uint8_t(fixes->first_event + XCB_XFIXES_SELECTION_NOTIFY);
        (void)owned(
            xcb_xfixes_query_version_reply(xcb, xcb_xfixes_query_version(xcb, 5, 0), nullptr));
        const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(xcb)).data->root;
        xcb_xfixes_select_selection_input(xcb, root, m_selection,
            XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER
                | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY
                | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
    }
    m_running = ask();
    qGuiApp->installNativeEventFilter(this);
}

CompositorWatch::~CompositorWatch()
{
    if (qGuiApp)
        qGuiApp->removeNativeEventFilter(this);
}

bool CompositorWatch::nativeEventFilter(const QByteArray& type, void* message, qintptr*)
{
    if (type != "xcb_generic_event_t" || !m_selectionEvent)
        return false;
    const auto* const event = static_cast<const xcb_xfixes_selection_notify_event_t*>(message);
    if ((event->response_type & 0x7f) != m_selectionEvent || event->selection != m_selection)
        return false;
    if (const bool running = event->owner != XCB_WINDOW_NONE; running != m_running) {
        m_running = running;
        m_changed();
    }
    return false;
}

bool CompositorWatch::ask() const
{
    const auto owner = owned(
        xcb_get_selection_owner_reply(m_xcb, xcb_get_selection_owner(m_xcb, m_selection), nullptr));
    return owner && owner->owner != XCB_WINDOW_NONE;
}
