// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/x11/X11ActiveApplication.h"

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
    const auto active
        = m_connection->words(m_connection->property(m_connection->root(), activeWindow));
    // Waiting for the answer may have read events off the socket, which then would wake nobody.
    QMetaObject::invokeMethod(this, &X11ActiveApplication::readEvents, Qt::QueuedConnection);
    // Between two windows the property is 0 for a moment.
    const auto window = active.empty() || !active[0] ? std::nullopt : m_windows.find(active[0]);
    return window ? std::optional(window->application) : std::nullopt;
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
