// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/desktop/client/Window.h"

#include <algorithm>
#include <cstdio>
#include <xkbcommon/xkbcommon.h>

namespace {

void tell(const std::string& line)
{
    std::puts(line.c_str());
    std::fflush(stdout);
}

std::string nameOf(xcb_connection_t* connection, xcb_keycode_t code)
{
    const auto cookie = xcb_get_keyboard_mapping(connection, code, 1);
    const auto map = owned(xcb_get_keyboard_mapping_reply(connection, cookie, nullptr));
    char name[64] = "none";
    if (map && map->keysyms_per_keycode > 0)
        xkb_keysym_get_name(*xcb_get_keyboard_mapping_keysyms(map.get()), name, sizeof name);
    return name;
}

template <typename Event>
const Event& as(const xcb_generic_event_t& event)
{
    return reinterpret_cast<const Event&>(event);
}

} // namespace

bool Window::handleEvents()
{
    // Again until nothing came: the round trips of reacting may have read events, and then the
    // descriptor stays silent.
    while (m_open && handlePending()) { }
    xcb_flush(m_connection);
    return m_open && !xcb_connection_has_error(m_connection);
}

bool Window::handlePending()
{
    bool any = false;
    while (const auto event = owned(xcb_poll_for_event(m_connection))) {
        handle(*event);
        any = true;
    }
    if (!any)
        return false;
    if (m_damaged)
        paint();
    if (m_painted)
        tellGeometry(); // Its round trip also means that the painting is done.
    if (!m_told && isReady()) {
        char line[32];
        std::snprintf(line, sizeof line, "mapped 0x%x", m_window);
        tell(line);
        m_told = true;
        m_options.minimized = false; // From now on mapped means shown.
    }
    return true;
}

void Window::handle(const xcb_generic_event_t& event)
{
    switch (event.response_type & 0x7f) {
    case XCB_EXPOSE:
        m_damaged = true;
        break;
    case XCB_CONFIGURE_NOTIFY: {
        const auto& place = as<xcb_configure_notify_event_t>(event);
        if (place.width == m_width && place.height == m_height)
            break;
        m_width = place.width;
        m_height = place.height;
        m_damaged = m_painted;
        applyShape();
        break;
    }
    case XCB_UNMAP_NOTIFY:
        m_painted = m_told = m_damaged = false;
        tell("unmapped");
        break;
    case XCB_KEY_PRESS:
        handleKey(as<xcb_key_press_event_t>(event));
        break;
    case XCB_KEY_RELEASE:
        tell("released " + nameOf(m_connection, as<xcb_key_press_event_t>(event).detail));
        break;
    case XCB_BUTTON_PRESS:
    case XCB_BUTTON_RELEASE: {
        const auto& button = as<xcb_button_press_event_t>(event);
        const bool down = (event.response_type & 0x7f) == XCB_BUTTON_PRESS;
        tell((down ? "press " : "release ") + std::to_string(button.detail) + ' '
            + std::to_string(button.event_x) + ',' + std::to_string(button.event_y));
        break;
    }
    case XCB_FOCUS_IN:
        handleFocus(as<xcb_focus_in_event_t>(event), "focus in");
        break;
    case XCB_FOCUS_OUT:
        handleFocus(as<xcb_focus_in_event_t>(event), "focus out");
        break;
    case XCB_CLIENT_MESSAGE:
        if (as<xcb_client_message_event_t>(event).data.data32[0] == atom("WM_DELETE_WINDOW"))
            m_open = false;
        break;
    }
}

void Window::handleKey(const xcb_key_press_event_t& key)
{
    std::string chord;
    constexpr std::pair<int, const char*> modifiers[] = {
        {XCB_MOD_MASK_CONTROL, "ctrl+"},
        {XCB_MOD_MASK_SHIFT, "shift+"},
        {XCB_MOD_MASK_1, "alt+"},
        {XCB_MOD_MASK_4, "super+"},
    };
    for (const auto& [mask, name] : modifiers)
        if (key.state & mask)
            chord += name;
    tell("key " + chord + nameOf(m_connection, key.detail));
}

void Window::handleFocus(const xcb_focus_in_event_t& focus, const char* direction)
{
    // Grabs come and go with every key that the window manager knows; they are no change of focus.
    const bool byGrab = focus.mode == XCB_NOTIFY_MODE_GRAB || focus.mode == XCB_NOTIFY_MODE_UNGRAB;
    if (!byGrab && focus.detail <= XCB_NOTIFY_DETAIL_NONLINEAR)
        tell(direction);
}

void Window::tellGeometry()
{
    const auto place = owned(xcb_translate_coordinates_reply(m_connection,
        xcb_translate_coordinates(m_connection, m_window, m_screen->root, 0, 0), nullptr));
    if (!place)
        return;
    const std::string geometry = std::to_string(place->dst_x) + ',' + std::to_string(place->dst_y)
        + ',' + std::to_string(m_width) + 'x' + std::to_string(m_height);
    if (geometry != m_geometry)
        tell("geometry " + geometry);
    m_geometry = geometry;
}

bool Window::isReady() const
{
    const auto state = owned(xcb_get_window_attributes_reply(
        m_connection, xcb_get_window_attributes(m_connection, m_window), nullptr));
    const bool shown = state && state->map_state == XCB_MAP_STATE_VIEWABLE && m_painted;
    if (!m_managed)
        return shown;
    constexpr std::uint32_t iconic = 3; // WM_STATE of ICCCM 4.1.3.1
    const auto managerState = property(m_window, "WM_STATE");
    const bool asAsked = m_options.minimized
        ? !managerState.empty() && managerState.front() == iconic
        : shown && !managerState.empty();
    if (!asAsked)
        return false;
    const auto listed = property(m_screen->root, "_NET_CLIENT_LIST_STACKING");
    return !property(m_window, "_NET_FRAME_EXTENTS").empty()
        && std::find(listed.begin(), listed.end(), m_window) != listed.end();
}

bool Window::obey(const std::string& command)
{
    std::uint32_t first = 0, second = 0;
    int x = 0, y = 0;
    if (command == "raise") {
        configure(XCB_CONFIG_WINDOW_STACK_MODE, {XCB_STACK_MODE_ABOVE});
    } else if (command == "lower") {
        configure(XCB_CONFIG_WINDOW_STACK_MODE, {XCB_STACK_MODE_BELOW});
    } else if (std::sscanf(command.c_str(), "move %d %d", &x, &y) == 2) {
        configure(XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y, {std::uint32_t(x), std::uint32_t(y)});
    } else if (std::sscanf(command.c_str(), "resize %u %u", &first, &second) == 2) {
        configure(XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT, {first, second});
    } else if (command == "map") {
        xcb_map_window(m_connection, m_window);
    } else if (command == "unmap") {
        xcb_unmap_window(m_connection, m_window);
    } else if (command == "grab keyboard") {
        grabKeyboard();
    } else if (command == "ungrab keyboard") {
        xcb_ungrab_keyboard(m_connection, XCB_CURRENT_TIME);
        tell("keyboard ungrabbed");
    } else if (command == "close") {
        m_open = false;
    } else {
        tell("not understood: " + command);
    }
    xcb_flush(m_connection);
    return m_open;
}

void Window::grabKeyboard()
{
    const auto cookie = xcb_grab_keyboard(
        m_connection, 1, m_window, XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    const auto reply = owned(xcb_grab_keyboard_reply(m_connection, cookie, nullptr));
    const bool grabbed = reply && reply->status == XCB_GRAB_STATUS_SUCCESS;
    tell(grabbed ? "keyboard grabbed" : "keyboard not grabbed");
}

void Window::configure(std::uint16_t mask, const std::vector<std::uint32_t>& values)
{
    xcb_configure_window(m_connection, m_window, mask, values.data());
}
