// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/desktop/client/Window.h"

#include <cstdio>
#include <unistd.h>
#include <xcb/shape.h>

namespace {

constexpr std::uint32_t watched = XCB_EVENT_MASK_EXPOSURE | XCB_EVENT_MASK_STRUCTURE_NOTIFY
    | XCB_EVENT_MASK_FOCUS_CHANGE | XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_KEY_RELEASE
    | XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_RELEASE | XCB_EVENT_MASK_PROPERTY_CHANGE;

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

} // namespace

Window::Window(xcb_connection_t* connection, const Options& options)
    : m_connection(connection)
    , m_screen(xcb_setup_roots_iterator(xcb_get_setup(connection)).data)
    , m_options(options)
    , m_width(options.width)
    , m_height(options.height)
{
    m_managed = !options.overrideRedirect
        && !property(m_screen->root, "_NET_SUPPORTING_WM_CHECK").empty();
    const std::uint32_t rootEvents = XCB_EVENT_MASK_PROPERTY_CHANGE; // For its list of windows.
    xcb_change_window_attributes(connection, m_screen->root, XCB_CW_EVENT_MASK, &rootEvents);
    create();
    describe();
    applyShape();
    xcb_map_window(connection, m_window);
    xcb_flush(connection);
}

void Window::create()
{
    const bool deep = m_options.look.translucent || m_options.look.hasShadow();
    m_depth = deep ? 32 : m_screen->root_depth;
    const xcb_visualid_t visual
        = deep ? visualOfDepth(*m_screen, 32) : xcb_visualid_t(m_screen->root_visual);
    const xcb_colormap_t colours = xcb_generate_id(m_connection);
    xcb_create_colormap(m_connection, XCB_COLORMAP_ALLOC_NONE, colours, m_screen->root, visual);
    // No background: what is not painted by this program is not painted, as with real ones.
    const std::uint32_t values[]
        = {XCB_BACK_PIXMAP_NONE, 0, m_options.overrideRedirect, watched, colours};
    m_window = xcb_generate_id(m_connection);
    xcb_create_window(m_connection, m_depth, m_window, m_screen->root, std::int16_t(m_options.x),
        std::int16_t(m_options.y), std::uint16_t(m_width), std::uint16_t(m_height), 0,
        XCB_WINDOW_CLASS_INPUT_OUTPUT, visual,
        XCB_CW_BACK_PIXMAP | XCB_CW_BORDER_PIXEL | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK
            | XCB_CW_COLORMAP,
        values);
    m_context = xcb_generate_id(m_connection);
    xcb_create_gc(m_connection, m_context, m_window, 0, nullptr);
}

void Window::describe()
{
    setText("WM_NAME", "STRING", m_options.title);
    setText("_NET_WM_NAME", "UTF8_STRING", m_options.title);
    setText("WM_CLASS", "STRING", m_options.instance + '\0' + m_options.className + '\0');
    set("WM_PROTOCOLS", XCB_ATOM_ATOM, {atom("WM_DELETE_WINDOW")});

    constexpr std::uint32_t userPosition = 1, userSize = 2, gravity = 1 << 9, staticGravity = 10;
    std::vector<std::uint32_t> sizes(18); // WM_SIZE_HINTS of ICCCM 4.1.2.3
    sizes.front() = userPosition | userSize | gravity;
    sizes.back() = staticGravity; // The window itself stays where it is; its frame lies around it.
    set("WM_NORMAL_HINTS", XCB_ATOM_WM_SIZE_HINTS, sizes);
    constexpr std::uint32_t input = 1, state = 2, normal = 1, iconic = 3;
    set("WM_HINTS", XCB_ATOM_WM_HINTS,
        {input | state, 1, m_options.minimized ? iconic : normal, 0, 0, 0, 0, 0, 0});

    if (!m_options.type.empty())
        set("_NET_WM_WINDOW_TYPE", XCB_ATOM_ATOM, {atom("_NET_WM_WINDOW_TYPE_" + m_options.type)});
    if (m_options.fullscreen)
        set("_NET_WM_STATE", XCB_ATOM_ATOM, {atom("_NET_WM_STATE_FULLSCREEN")});
    if (m_options.withPid) {
        char host[256] = {};
        ::gethostname(host, sizeof host - 1);
        setText("WM_CLIENT_MACHINE", "STRING", host);
        set("_NET_WM_PID", XCB_ATOM_CARDINAL, {std::uint32_t(::getpid())});
    }
    if (m_options.own)
        set("_PIXMALLOW_OWN", XCB_ATOM_CARDINAL, {1});
    if (const Look& look = m_options.look; look.hasShadow()) {
        set("_GTK_FRAME_EXTENTS", XCB_ATOM_CARDINAL,
            {std::uint32_t(look.left), std::uint32_t(look.right), std::uint32_t(look.top),
                std::uint32_t(look.bottom)});
        constexpr std::uint32_t decorations = 2; // Says which field counts: none are wanted.
        set("_MOTIF_WM_HINTS", atom("_MOTIF_WM_HINTS"), {decorations, 0, 0, 0, 0});
    }
}

void Window::applyShape()
{
    if (!m_options.shaped)
        return;
    std::vector<xcb_rectangle_t> rows;
    for (int y = 0; y < m_height; ++y) {
        const int inset = std::min(roundedInset(y, m_height), m_width / 2);
        rows.push_back(
            {std::int16_t(inset), std::int16_t(y), std::uint16_t(m_width - 2 * inset), 1});
    }
    xcb_shape_rectangles(m_connection, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING,
        XCB_CLIP_ORDERING_YX_BANDED, m_window, 0, 0, std::uint32_t(rows.size()), rows.data());
}

void Window::paint()
{
    constexpr int strip = 128; // Rows; a request holds at most 16 MiB.
    std::vector<std::uint32_t> pixels(std::size_t(m_width) * strip);
    for (int top = 0; top < m_height; top += strip) {
        const int rows = std::min(strip, m_height - top);
        auto pixel = pixels.begin();
        for (int y = top; y < top + rows; ++y)
            for (int x = 0; x < m_width; ++x)
                *pixel++ = pixelOf(m_options.look, x, y, m_width, m_height);
        xcb_put_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, m_window, m_context,
            std::uint16_t(m_width), std::uint16_t(rows), 0, std::int16_t(top), 0, m_depth,
            std::uint32_t(m_width * rows * 4),
            reinterpret_cast<const std::uint8_t*>(pixels.data()));
    }
    m_damaged = false;
    m_painted = true;
}

xcb_atom_t Window::atom(const std::string& name) const
{
    const auto cookie = xcb_intern_atom(m_connection, 0, std::uint16_t(name.size()), name.c_str());
    const auto reply = owned(xcb_intern_atom_reply(m_connection, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}

void Window::set(const char* property, xcb_atom_t type, const std::vector<std::uint32_t>& values)
{
    xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_window, atom(property), type, 32,
        std::uint32_t(values.size()), values.data());
}

void Window::setText(const char* property, const char* type, const std::string& text)
{
    xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_window, atom(property), atom(type),
        8, std::uint32_t(text.size()), text.data());
}

std::vector<std::uint32_t> Window::property(xcb_window_t window, const char* name) const
{
    const auto cookie
        = xcb_get_property(m_connection, 0, window, atom(name), XCB_ATOM_ANY, 0, 1 << 20);
    const auto reply = owned(xcb_get_property_reply(m_connection, cookie, nullptr));
    if (!reply || reply->format != 32)
        return {};
    const auto* values = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
    return {values, values + reply->value_len};
}
