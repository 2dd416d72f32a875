// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/x11/X11ActiveApplication.h"

#include <algorithm>

namespace {

constexpr char activeWindow[] = "_NET_ACTIVE_WINDOW";

} // namespace

X11ActiveApplication::X11ActiveApplication(std::shared_ptr<X11Connection> connection)
    : m_connection(std::move(connection))
    , m_windows(m_connection)
    , m_notifier(xcb_get_file_descriptor(m_connection->xcb()), QSocketNotifier::Read)
{
    const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(
        m_connection->xcb(), m_connection->root(), XCB_CW_EVENT_MASK, &events);
    xcb_flush(m_connection->xcb());
    connect(&m_notifier, &QSocketNotifier::activated, this, &X11ActiveApplication::readEvents);
}

std::optional<Application> X11ActiveApplication::current()
{
    const xcb_window_t active = front();
    const auto window = active ? m_windows.find(active) : std::nullopt;
    return window ? std::optional(window->application) : std::nullopt;
}

bool X11ActiveApplication::isFullScreen()
{
    const xcb_window_t active = front();
    return active
        && std::ranges::count(m_connection->words(m_connection->property(active, "_NET_WM_STATE")),
            m_connection->atom("_NET_WM_STATE_FULLSCREEN"));
}

/// The active window; 0 where there is none, as between two windows for a moment.
xcb_window_t X11ActiveApplication::front()
{
    const auto active
        = m_connection->words(m_connection->property(m_connection->root(), activeWindow));
    // Waiting for the answer may have read events off the socket, which then would wake nobody.
    QMetaObject::invokeMethod(this, &X11ActiveApplication::readEvents, Qt::QueuedConnection);
    return active.empty() ? 0 : active[0];
}

void X11ActiveApplication::readEvents()
{
    if (xcb_connection_has_error(m_connection->xcb())) {
        m_notifier.setEnabled(
            false); // The toolkit ends the program; this must not spin until then.
        return;
    }
    const xcb_atom_t atom = m_connection->atom(activeWindow);
    bool changed = false;
    while (const auto event = owned(xcb_poll_for_event(m_connection->xcb())))
        if ((event->response_type & 0x7f) == XCB_PROPERTY_NOTIFY)
            changed |= reinterpret_cast<xcb_property_notify_event_t*>(event.get())->atom == atom;
    if (!changed)
        return;
    if (const auto application = current())
        Q_EMIT activated(*application);
}
