// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/desktop/client/Window.h"

#include "platform/x11/Reply.h"

#include <algorithm>
#include <cstdio>
#include <unistd.h>
#include <xcb/shape.h>
#include <xkbcommon/xkbcommon.h>

namespace {

constexpr quint32 watched = XCB_EVENT_MASK_EXPOSURE | XCB_EVENT_MASK_STRUCTURE_NOTIFY
    | XCB_EVENT_MASK_FOCUS_CHANGE | XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_BUTTON_PRESS
    | XCB_EVENT_MASK_PROPERTY_CHANGE;

void tell(const QByteArray& line)
{
    std::puts(line.constData());
    std::fflush(stdout);
}

xcb_visualid_t visualOfDepth(const xcb_screen_t& screen, int depth)
{
    for (auto depths = xcb_screen_allowed_depths_iterator(&screen); depths.rem;
         xcb_depth_next(&depths))
        if (depths.data->depth == depth)
            for (auto visuals = xcb_depth_visuals_iterator(depths.data); visuals.rem;
                 xcb_visualtype_next(&visuals))
                if (visuals.data->_class == XCB_VISUAL_CLASS_TRUE_COLOR)
                    return visuals.data->visual_id;
    return screen.root_visual;
}

template <typename Event>
const Event& as(const xcb_generic_event_t& event)
{
    return reinterpret_cast<const Event&>(event);
}

} // namespace

Result<void> Window::open()
{
    if (const auto connected = connect(qEnvironmentVariable("DISPLAY")); !connected)
        return connected;
    m_width = m_options.geometry.width();
    m_height = m_options.geometry.height();
    m_managed = !m_options.overrideRedirect
        && !property(screen().root, "_NET_SUPPORTING_WM_CHECK").empty();
    const quint32 rootEvents = XCB_EVENT_MASK_PROPERTY_CHANGE; // For its list of windows.
    xcb_change_window_attributes(connection(), screen().root, XCB_CW_EVENT_MASK, &rootEvents);
    create();
    describe();
    applyShape();
    xcb_map_window(connection(), m_window);
    xcb_flush(connection());
    return {};
}

void Window::create()
{
    const bool deep = m_options.look.translucent || m_options.look.hasShadow();
    m_depth = deep ? 32 : screen().root_depth;
    const auto visual = visualOfDepth(screen(), m_depth);
    const xcb_colormap_t colours = xcb_generate_id(connection());
    xcb_create_colormap(connection(), XCB_COLORMAP_ALLOC_NONE, colours, screen().root, visual);
    // No background: what is not painted by this program is not painted, as with real ones.
    const quint32 values[]
        = {XCB_BACK_PIXMAP_NONE, 0, m_options.overrideRedirect, watched, colours};
    m_window = xcb_generate_id(connection());
    xcb_create_window(connection(), m_depth, m_window, screen().root,
        qint16(m_options.geometry.x()), qint16(m_options.geometry.y()), quint16(m_width),
        quint16(m_height), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, visual,
        XCB_CW_BACK_PIXMAP | XCB_CW_BORDER_PIXEL | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK
            | XCB_CW_COLORMAP,
        values);
}

void Window::describe()
{
    setText("WM_NAME", "STRING", m_options.title);
    setText("_NET_WM_NAME", "UTF8_STRING", m_options.title);
    setText("WM_CLASS", "STRING", m_options.instance + '\0' + m_options.className + '\0');

    constexpr quint32 userPosition = 1, userSize = 2, gravity = 1 << 9, staticGravity = 10;
    std::vector<quint32> sizes(18); // WM_SIZE_HINTS of ICCCM 4.1.2.3
    sizes.front() = userPosition | userSize | gravity;
    sizes.back() = staticGravity; // The window itself stays where it is; its frame lies around it.
    set("WM_NORMAL_HINTS", XCB_ATOM_WM_SIZE_HINTS, sizes);
    constexpr quint32 input = 1, state = 2, normal = 1, iconic = 3;
    set("WM_HINTS", XCB_ATOM_WM_HINTS,
        {input | state, 1, m_options.minimized ? iconic : normal, 0, 0, 0, 0, 0, 0});

    if (!m_options.type.isEmpty())
        set("_NET_WM_WINDOW_TYPE", XCB_ATOM_ATOM, {atom("_NET_WM_WINDOW_TYPE_" + m_options.type)});
    if (m_options.fullscreen)
        set("_NET_WM_STATE", XCB_ATOM_ATOM, {atom("_NET_WM_STATE_FULLSCREEN")});
    if (m_options.withPid) {
        setText("WM_CLIENT_MACHINE", "STRING", QSysInfo::machineHostName().toLocal8Bit());
        set("_NET_WM_PID", XCB_ATOM_CARDINAL, {quint32(::getpid())});
    }
    if (m_options.own)
        set("_PIXMALLOW_OWN", XCB_ATOM_CARDINAL, {1});
    if (const Look& look = m_options.look; look.hasShadow()) {
        set("_GTK_FRAME_EXTENTS", XCB_ATOM_CARDINAL,
            {quint32(look.left), quint32(look.right), quint32(look.top), quint32(look.bottom)});
        constexpr quint32 decorations = 2; // Says which field counts: none are wanted.
        set("_MOTIF_WM_HINTS", atom("_MOTIF_WM_HINTS"), {decorations, 0, 0, 0, 0});
    }
}

void Window::set(const char* property, xcb_atom_t type, const std::vector<quint32>& values)
{
    xcb_change_property(connection(), XCB_PROP_MODE_REPLACE, m_window, atom(property), type, 32,
        quint32(values.size()), values.data());
}

void Window::setText(const char* property, const char* type, const QByteArray& text)
{
    xcb_change_property(connection(), XCB_PROP_MODE_REPLACE, m_window, atom(property), atom(type),
        8, quint32(text.size()), text.data());
}

bool Window::handleEvents()
{
    // Again until nothing came: the round trips of reacting may have read events, and then the
    // descriptor stays silent.
    while (auto event = owned(xcb_poll_for_event(connection()))) {
        for (; event; event = owned(xcb_poll_for_event(connection())))
            handle(*event);
        if (m_damaged)
            paint();
        if (m_painted)
            tellGeometry(); // Its round trip also means that the painting is done.
        if (!m_told && isReady()) {
            tell("mapped 0x" + QByteArray::number(m_window, 16));
            m_told = true;
        }
    }
    return !xcb_connection_has_error(connection());
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
    case XCB_KEY_PRESS:
        handleKey(as<xcb_key_press_event_t>(event));
        break;
    case XCB_BUTTON_PRESS: {
        const auto& button = as<xcb_button_press_event_t>(event);
        tell("press " + QByteArray::number(button.detail) + ' ' + QByteArray::number(button.event_x)
            + ',' + QByteArray::number(button.event_y));
        break;
    }
    case XCB_FOCUS_IN:
        handleFocus(as<xcb_focus_in_event_t>(event), "focus in");
        break;
    case XCB_FOCUS_OUT:
        handleFocus(as<xcb_focus_in_event_t>(event), "focus out");
        break;
    }
}

void Window::handleKey(const xcb_key_press_event_t& key)
{
    QByteArray chord;
    constexpr std::pair<int, const char*> modifiers[] = {
        {XCB_MOD_MASK_CONTROL, "ctrl+"},
        {XCB_MOD_MASK_SHIFT, "shift+"},
        {XCB_MOD_MASK_1, "alt+"},
        {XCB_MOD_MASK_4, "super+"},
    };
    for (const auto& [mask, name] : modifiers)
        if (key.state & mask)
            chord += name;
    const auto cookie = xcb_get_keyboard_mapping(connection(), key.detail, 1);
    const auto map = owned(xcb_get_keyboard_mapping_reply(connection(), cookie, nullptr));
    char name[64] = "none";
    if (map && map->keysyms_per_keycode > 0)
        xkb_keysym_get_name(*xcb_get_keyboard_mapping_keysyms(map.get()), name, sizeof name);
    tell("key " + chord + name);
}

void Window::handleFocus(const xcb_focus_in_event_t& focus, const char* direction)
{
    // Grabs come and go with every key that the window manager knows; they are no change of focus.
    const bool byGrab = focus.mode == XCB_NOTIFY_MODE_GRAB || focus.mode == XCB_NOTIFY_MODE_UNGRAB;
    if (!byGrab && focus.detail <= XCB_NOTIFY_DETAIL_NONLINEAR)
        tell(direction);
}

void Window::applyShape()
{
    if (!m_options.shaped)
        return;
    std::vector<xcb_rectangle_t> rows;
    for (int y = 0; y < m_height; ++y) {
        const int inset = std::min(cornerInset(y, m_height), m_width / 2);
        rows.push_back({qint16(inset), qint16(y), quint16(m_width - 2 * inset), 1});
    }
    xcb_shape_rectangles(connection(), XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING,
        XCB_CLIP_ORDERING_YX_BANDED, m_window, 0, 0, quint32(rows.size()), rows.data());
}

void Window::paint()
{
    put(m_window, m_depth, pictureOf(m_options.look, {m_width, m_height}));
    m_damaged = false;
    m_painted = true;
}

void Window::tellGeometry()
{
    const auto place = owned(xcb_translate_coordinates_reply(connection(),
        xcb_translate_coordinates(connection(), m_window, screen().root, 0, 0), nullptr));
    if (!place)
        return;
    const QByteArray geometry = QByteArray::number(place->dst_x) + ','
        + QByteArray::number(place->dst_y) + ',' + QByteArray::number(m_width) + 'x'
        + QByteArray::number(m_height);
    if (geometry != m_geometry)
        tell("geometry " + geometry);
    m_geometry = geometry;
}

bool Window::isReady() const
{
    const auto state = owned(xcb_get_window_attributes_reply(
        connection(), xcb_get_window_attributes(connection(), m_window), nullptr));
    const bool shown = state && state->map_state == XCB_MAP_STATE_VIEWABLE && m_painted;
    if (!m_managed)
        return shown;
    constexpr quint32 iconic = 3; // WM_STATE of ICCCM 4.1.3.1
    const auto managerState = property(m_window, "WM_STATE");
    if (managerState.empty() || !(m_options.minimized ? managerState.front() == iconic : shown))
        return false;
    const auto listed = property(screen().root, "_NET_CLIENT_LIST_STACKING");
    return !property(m_window, "_NET_FRAME_EXTENTS").empty()
        && std::find(listed.begin(), listed.end(), m_window) != listed.end();
}

void Window::obey(const QByteArray& command)
{
    if (command == "raise") {
        const quint32 above = XCB_STACK_MODE_ABOVE;
        xcb_configure_window(connection(), m_window, XCB_CONFIG_WINDOW_STACK_MODE, &above);
    } else if (command == "grab keyboard") {
        grabKeyboard();
    } else if (command == "ungrab keyboard") {
        xcb_ungrab_keyboard(connection(), XCB_CURRENT_TIME);
        tell("keyboard ungrabbed");
    } else {
        tell("not understood: " + command);
    }
    xcb_flush(connection());
}

void Window::grabKeyboard()
{
    const auto cookie = xcb_grab_keyboard(
        connection(), 1, m_window, XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    const auto reply = owned(xcb_grab_keyboard_reply(connection(), cookie, nullptr));
    const bool grabbed = reply && reply->status == XCB_GRAB_STATUS_SUCCESS;
    tell(grabbed ? "keyboard grabbed" : "keyboard not grabbed");
}
