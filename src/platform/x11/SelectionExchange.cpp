// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/x11/SelectionExchange.h"

#include "base/Words.h"

#include <QDeadlineTimer>

#include <poll.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr const char* selectionName = "_PIXMALLOW_EXAMINATION";
constexpr const char* targetName = "image/png";
constexpr const char* propertyName = "_PIXMALLOW_TAKEN";

constexpr auto patience = 2s;

/// The most that goes in one request, far below what any server takes.
constexpr std::uint32_t mostWords = 16 * 1024;

} // namespace

SelectionExchange::SelectionExchange(
    std::shared_ptr<X11Connection> giver, std::shared_ptr<X11Connection> taker)
    : m_giver(std::move(giver))
    , m_taker(std::move(taker))
    , m_owner(makeWindow(*m_giver))
    , m_requestor(makeWindow(*m_taker))
{
}

SelectionExchange::~SelectionExchange()
{
    xcb_destroy_window(m_giver->xcb(), m_owner);
    xcb_destroy_window(m_taker->xcb(), m_requestor);
    xcb_flush(m_giver->xcb());
    xcb_flush(m_taker->xcb());
}

Result<QByteArray> SelectionExchange::exchange(const QByteArray& bytes)
{
    Q_ASSERT(std::size_t(bytes.size()) <= mostWords * 4);
    const xcb_atom_t selection = m_giver->atom(selectionName);
    xcb_set_selection_owner(m_giver->xcb(), m_owner, selection, XCB_CURRENT_TIME);
    const auto owner = owned(xcb_get_selection_owner_reply(
        m_giver->xcb(), xcb_get_selection_owner(m_giver->xcb(), selection), nullptr));
    if (!owner || owner->owner != m_owner)
        return m_giver->failure(Words::tr("The X server does not let programs offer copies."));

    xcb_convert_selection(m_taker->xcb(), m_requestor, m_taker->atom(selectionName),
        m_taker->atom(targetName), m_taker->atom(propertyName), XCB_CURRENT_TIME);
    xcb_flush(m_taker->xcb());
    const bool asked
        = waitForEvent(*m_giver, XCB_SELECTION_REQUEST, [&](const xcb_generic_event_t& event) {
              give(reinterpret_cast<const xcb_selection_request_event_t&>(event), bytes);
          });
    if (!asked)
        return m_giver->failure(Words::tr("A program that offers a copy is not asked for it."));
    const bool told = waitForEvent(*m_taker, XCB_SELECTION_NOTIFY, [](auto&) {});
    if (!told)
        return m_taker->failure(Words::tr("What a program copies does not reach another one."));
    return m_taker->text(xcb_get_property(m_taker->xcb(), 1, m_requestor,
        m_taker->atom(propertyName), XCB_GET_PROPERTY_TYPE_ANY, 0, mostWords));
}

void SelectionExchange::give(
    const xcb_selection_request_event_t& request, const QByteArray& bytes) const
{
    xcb_change_property(m_giver->xcb(), XCB_PROP_MODE_REPLACE, request.requestor, request.property,
        request.target, 8, std::uint32_t(bytes.size()), bytes.constData());
    xcb_selection_notify_event_t answer {};
    answer.response_type = XCB_SELECTION_NOTIFY;
    answer.time = request.time;
    answer.requestor = request.requestor;
    answer.selection = request.selection;
    answer.target = request.target;
    answer.property = request.property;
    xcb_send_event(m_giver->xcb(), 0, request.requestor, 0, reinterpret_cast<const char*>(&answer));
    xcb_flush(m_giver->xcb());
}

xcb_window_t SelectionExchange::makeWindow(X11Connection& connection) const
{
    const xcb_window_t window = xcb_generate_id(connection.xcb());
    xcb_create_window(connection.xcb(), XCB_COPY_FROM_PARENT, window, connection.root(), 0, 0, 1, 1,
        0, XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    return window;
}

/// Passes over events of other types. False when none came in time.
bool SelectionExchange::waitForEvent(X11Connection& connection, std::uint8_t type,
    const std::function<void(const xcb_generic_event_t&)>& handle) const
{
    const QDeadlineTimer deadline(patience);
    while (!xcb_connection_has_error(connection.xcb())) {
        while (const auto event = owned(xcb_poll_for_event(connection.xcb()))) {
            if ((event->response_type & 0x7f) != type)
                continue;
            handle(*event);
            return true;
        }
        if (deadline.hasExpired())
            return false;
        pollfd readable {xcb_get_file_descriptor(connection.xcb()), POLLIN, 0};
        poll(&readable, 1, int(deadline.remainingTime()));
    }
    return false;
}
