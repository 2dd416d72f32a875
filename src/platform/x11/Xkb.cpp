// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/x11/Xkb.h"

#define explicit explicitComponents // The name of a field in there.
#include <xcb/xkb.h>
#undef explicit

namespace {

constexpr xcb_xkb_device_spec_t keyboard = XCB_XKB_ID_USE_CORE_KBD;

const xcb_query_extension_reply_t* extensionOf(const X11Connection& connection)
{
    const auto* extension = xcb_get_extension_data(connection.xcb(), &xcb_xkb_id);
    return extension && extension->present ? extension : nullptr;
}

/// What kind of event of the extension this is; -1 if of none.
int kindOf(const X11Connection& connection, const xcb_generic_event_t& event)
{
    const auto* extension = extensionOf(connection);
    return extension && (event.response_type & 0x7f) == extension->first_event ? event.pad0 : -1;
}

} // namespace

void Xkb::start(const X11Connection& connection)
{
    if (!extensionOf(connection))
        return;
    xcb_connection_t* xcb = connection.xcb();
    const auto used = xcb_xkb_use_extension(xcb, XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION);
    xcb_discard_reply(xcb, used.sequence);
    constexpr auto flag = XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT;
    const auto set = xcb_xkb_per_client_flags(xcb, keyboard, flag, flag, 0, 0, 0);
    xcb_discard_reply(xcb, set.sequence);
    constexpr auto events = XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY;
    constexpr auto parts = XCB_XKB_MAP_PART_KEY_SYMS | XCB_XKB_MAP_PART_MODIFIER_MAP;
    xcb_xkb_select_events(xcb, keyboard, events, 0, events, parts, parts, nullptr);
    xcb_flush(xcb);
}

bool Xkb::isNewMapping(const X11Connection& connection, const xcb_generic_event_t& event)
{
    const int kind = kindOf(connection, event);
    return kind == XCB_XKB_NEW_KEYBOARD_NOTIFY || kind == XCB_XKB_MAP_NOTIFY;
}

void Xkb::watchModifiers(const X11Connection& connection, bool watch)
{
    constexpr auto states = XCB_XKB_EVENT_TYPE_STATE_NOTIFY;
    if (extensionOf(connection))
        xcb_xkb_select_events(connection.xcb(), keyboard, states, watch ? 0 : states,
            watch ? states : 0, 0, 0, nullptr);
}

std::uint16_t Xkb::modifiers(const X11Connection& connection)
{
    if (!extensionOf(connection))
        return 0;
    const auto state = owned(xcb_xkb_get_state_reply(
        connection.xcb(), xcb_xkb_get_state(connection.xcb(), keyboard), nullptr));
    return state ? state->mods : 0;
}

std::optional<std::uint16_t> Xkb::modifiersIn(
    const X11Connection& connection, const xcb_generic_event_t& event)
{
    if (kindOf(connection, event) != XCB_XKB_STATE_NOTIFY)
        return std::nullopt;
    return reinterpret_cast<const xcb_xkb_state_notify_event_t&>(event).mods;
}
