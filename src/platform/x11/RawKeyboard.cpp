// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/x11/RawKeyboard.h"

#include "platform/x11/Xkb.h"

#include <xcb/xinput.h>

RawKeyboard::RawKeyboard(std::shared_ptr<X11Connection> connection)
    : m_connection(std::move(connection))
{
}

void RawKeyboard::setEnabled(bool enabled)
{
    xcb_connection_t* xcb = m_connection->xcb();
    const auto* extension = xcb_get_extension_data(xcb, &xcb_input_id);
    if (!extension || !extension->present)
        return;
    // Only to clients that know of version 2.1 a grabbed keyboard is told of.
    const auto version = owned(
        xcb_input_xi_query_version_reply(xcb, xcb_input_xi_query_version(xcb, 2, 2), nullptr));
    if (!version)
        return;
    const struct {
        xcb_input_event_mask_t head {XCB_INPUT_DEVICE_ALL_MASTER, 1};
        std::uint32_t events = 0;
    } none,
        keys {.events
            = XCB_INPUT_XI_EVENT_MASK_RAW_KEY_PRESS | XCB_INPUT_XI_EVENT_MASK_RAW_KEY_RELEASE};
    xcb_input_xi_select_events(xcb, m_connection->root(), 1, &(enabled ? keys : none).head);
    Xkb::watchModifiers(*m_connection, enabled);
    m_modifiers = enabled ? Xkb::modifiers(*m_connection) : std::uint16_t(0);
    m_extension = enabled ? extension->major_opcode : std::uint8_t(0);
    xcb_flush(xcb);
}

std::optional<KeyChange> RawKeyboard::read(const xcb_generic_event_t& event)
{
    if (!m_extension)
        return std::nullopt;
    if (const auto modifiers = Xkb::modifiersIn(*m_connection, event))
        m_modifiers = *modifiers;
    const auto& key = reinterpret_cast<const xcb_input_raw_key_press_event_t&>(event);
    if ((event.response_type & 0x7f) != XCB_GE_GENERIC || key.extension != m_extension)
        return std::nullopt;
    return KeyChange {
        key.event_type == XCB_INPUT_RAW_KEY_PRESS, KeyPosition(key.detail), m_modifiers};
}
