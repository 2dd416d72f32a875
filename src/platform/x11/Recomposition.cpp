// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/x11/Recomposition.h"

#include <xcb/composite.h>
#include <xcb/render.h>
#include <xcb/xfixes.h>

#include <algorithm>
#include <optional>

namespace {

struct Layer {
    xcb_window_t window;
    QRect rect; ///< Pixels of the root window, with the border.
    int border;
    int depth;
    std::uint32_t opacity; ///< Of 0xffffffff.
};

/// What is to be seen on screen, bottom first.
std::vector<Layer> visibleLayers(X11Connection& connection, std::vector<xcb_window_t> stack)
{
    std::reverse(stack.begin(), stack.end());
    struct Asked {
        xcb_get_window_attributes_cookie_t attributes;
        xcb_get_geometry_cookie_t geometry;
        xcb_get_property_cookie_t opacity;
    };
    std::vector<Asked> asked;
    for (const auto window : stack)
        asked.push_back({xcb_get_window_attributes(connection.xcb(), window),
            xcb_get_geometry(connection.xcb(), window),
            connection.property(window, "_NET_WM_WINDOW_OPACITY")});

    std::vector<Layer> layers;
    for (std::size_t i = 0; i < stack.size(); ++i) {
        const auto attributes = owned(
            xcb_get_window_attributes_reply(connection.xcb(), asked[i].attributes, nullptr));
        const auto geometry
            = owned(xcb_get_geometry_reply(connection.xcb(), asked[i].geometry, nullptr));
        const auto opacity = connection.words(asked[i].opacity);
        if (!attributes || !geometry || attributes->map_state != XCB_MAP_STATE_VIEWABLE
            || attributes->_class != XCB_WINDOW_CLASS_INPUT_OUTPUT)
            continue;
        const int border = geometry->border_width;
        const QRect rect(
            geometry->x, geometry->y, geometry->width + 2 * border, geometry->height + 2 * border);
        layers.push_back(
            {stack[i], rect, border, geometry->depth, opacity.empty() ? ~0u : opacity[0]});
    }
    return layers;
}

/// The standard formats of the RENDER extension for pictures with and without alpha.
struct Formats {
    xcb_render_pictformat_t opaque = 0;
    xcb_render_pictformat_t withAlpha = 0;
};

Formats formats(xcb_connection_t* xcb)
{
    Formats found;
    const auto reply = owned(
        xcb_render_query_pict_formats_reply(xcb, xcb_render_query_pict_formats(xcb), nullptr));
    if (!reply)
        return found;
    for (auto it = xcb_render_query_pict_formats_formats_iterator(reply.get()); it.rem;
         xcb_render_pictforminfo_next(&it)) {
        const auto& direct = it.data->direct;
        const bool native = it.data->type == XCB_RENDER_PICT_TYPE_DIRECT && direct.red_shift == 16
            && direct.green_shift == 8 && direct.blue_shift == 0;
        if (native && it.data->depth == 24)
            found.opaque = it.data->id;
        if (native && it.data->depth == 32 && direct.alpha_shift == 24 && direct.alpha_mask == 255)
            found.withAlpha = it.data->id;
    }
    return found;
}

xcb_rectangle_t rectangle(QRect rect)
{
    return {std::int16_t(rect.x()), std::int16_t(rect.y()), std::uint16_t(rect.width()),
        std::uint16_t(rect.height())};
}

class Painter {
public:
    Painter(X11Connection& connection, xcb_pixmap_t target, QRect area,
        const std::vector<xcb_rectangle_t>& holes)
        : m_connection(connection)
        , m_xcb(connection.xcb())
        , m_pixmap(target)
        , m_area(area)
        , m_formats(formats(m_xcb))
        , m_composited(connection.isComposited())
        , m_target(xcb_generate_id(m_xcb))
        , m_holes(xcb_generate_id(m_xcb))
    {
        // The server refuses regions to a client that has not said which version it speaks.
        (void)owned(
            xcb_xfixes_query_version_reply(m_xcb, xcb_xfixes_query_version(m_xcb, 5, 0), nullptr));
        xcb_render_create_picture(m_xcb, m_target, target, m_formats.opaque, 0, nullptr);
        xcb_xfixes_create_region(m_xcb, m_holes, std::uint32_t(holes.size()), holes.data());
    }

    ~Painter()
    {
        xcb_xfixes_destroy_region(m_xcb, m_holes);
        xcb_render_free_picture(m_xcb, m_target);
    }

    void background(const std::vector<Layer>& layers)
    {
        xcb_xfixes_set_picture_clip_region(m_xcb, m_target, m_holes, 0, 0);
        const auto wallpaper
            = m_connection.words(m_connection.property(m_connection.root(), "_XROOTPMAP_ID"));
        if (!wallpaper.empty())
            composite(wallpaper[0], m_formats.opaque, QRect({}, m_connection.rootSize()),
                XCB_RENDER_PICT_OP_SRC, ~0u);
        else if (m_composited)
            compositorsBackground(layers);
        else
            bareBackground();
    }

    void layer(const Layer& layer)
    {
        const xcb_xfixes_region_t clip = xcb_generate_id(m_xcb);
        xcb_xfixes_create_region_from_window(m_xcb, clip, layer.window, XCB_SHAPE_SK_BOUNDING);
        const QPoint inner = layer.rect.topLeft() + QPoint(layer.border, layer.border);
        const QPoint offset = inner - m_area.topLeft();
        xcb_xfixes_translate_region(
            m_xcb, clip, std::int16_t(offset.x()), std::int16_t(offset.y()));
        xcb_xfixes_intersect_region(m_xcb, clip, m_holes, clip);
        xcb_xfixes_set_picture_clip_region(m_xcb, m_target, clip, 0, 0);

        // Without a compositing manager the screen shows the bare colours of a window with alpha.
        const bool blended = m_composited && (layer.depth == 32 || layer.opacity != ~0u);
        const xcb_pixmap_t pixels = xcb_generate_id(m_xcb);
        xcb_composite_name_window_pixmap(m_xcb, layer.window, pixels);
        composite(pixels, layer.depth == 32 ? m_formats.withAlpha : m_formats.opaque, layer.rect,
            blended ? XCB_RENDER_PICT_OP_OVER : XCB_RENDER_PICT_OP_SRC,
            m_composited ? layer.opacity : ~0u);
        xcb_free_pixmap(m_xcb, pixels);
        xcb_xfixes_destroy_region(m_xcb, clip);
    }

private:
    /// A compositing manager without a wallpaper has a plain colour of its own. It is seen wherever
    /// there is no window; if that is nowhere, it is not missed much.
    void compositorsBackground(const std::vector<Layer>& layers)
    {
        std::vector<QPoint> candidates {m_area.topLeft(), m_area.topRight(), m_area.bottomLeft()};
        for (const Layer& layer : layers)
            candidates.push_back(layer.rect.topLeft() - QPoint(1, 1));
        const auto bare = std::ranges::find_if(candidates, [&](QPoint at) {
            return m_area.contains(at) && std::ranges::none_of(layers, [at](const Layer& layer) {
                return layer.rect.contains(at);
            });
        });
        xcb_render_color_t colour {0, 0, 0, 0xffff};
        if (bare != candidates.end()) {
            const QPoint at = *bare - m_area.topLeft();
            const auto image = owned(xcb_get_image_reply(m_xcb,
                xcb_get_image(m_xcb, XCB_IMAGE_FORMAT_Z_PIXMAP, m_pixmap, std::int16_t(at.x()),
                    std::int16_t(at.y()), 1, 1, ~0u),
                nullptr));
            if (image && xcb_get_image_data_length(image.get()) >= 3) {
                const std::uint8_t* const pixel = xcb_get_image_data(image.get());
                const auto wide = [](int part) { return std::uint16_t(part * 0x101); };
                colour = {wide(pixel[2]), wide(pixel[1]), wide(pixel[0]), 0xffff};
            }
        }
        const auto everywhere = rectangle({{}, m_area.size()});
        xcb_render_fill_rectangles(m_xcb, XCB_RENDER_PICT_OP_SRC, m_target, colour, 1, &everywhere);
    }

    /// A root window does not tell its background. But a child can borrow it, and a child that is
    /// redirected by hand is never seen: the server paints it off screen only.
    void bareBackground()
    {
        const xcb_window_t window = xcb_generate_id(m_xcb);
        const std::uint32_t values[] = {XCB_BACK_PIXMAP_PARENT_RELATIVE, 1};
        const auto at = rectangle(m_area);
        xcb_create_window(m_xcb, XCB_COPY_FROM_PARENT, window, m_connection.root(), at.x, at.y,
            at.width, at.height, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
            XCB_CW_BACK_PIXMAP | XCB_CW_OVERRIDE_REDIRECT, values);
        const std::uint32_t below = XCB_STACK_MODE_BELOW;
        xcb_configure_window(m_xcb, window, XCB_CONFIG_WINDOW_STACK_MODE, &below);
        xcb_composite_redirect_window(m_xcb, window, XCB_COMPOSITE_REDIRECT_MANUAL);
        xcb_map_window(m_xcb, window);
        const xcb_pixmap_t pixels = xcb_generate_id(m_xcb);
        xcb_composite_name_window_pixmap(m_xcb, window, pixels);
        composite(pixels, m_formats.opaque, m_area, XCB_RENDER_PICT_OP_SRC, ~0u);
        xcb_free_pixmap(m_xcb, pixels);
        xcb_destroy_window(m_xcb, window);
    }

    void composite(xcb_pixmap_t pixels, xcb_render_pictformat_t format, QRect rectOnRoot,
        std::uint8_t operation, std::uint32_t opacity)
    {
        const xcb_render_picture_t source = xcb_generate_id(m_xcb);
        xcb_render_create_picture(m_xcb, source, pixels, format, 0, nullptr);
        xcb_render_picture_t mask = XCB_NONE;
        if (opacity != ~0u) {
            mask = xcb_generate_id(m_xcb);
            xcb_render_create_solid_fill(m_xcb, mask, {0, 0, 0, std::uint16_t(opacity >> 16)});
        }
        const auto to = rectangle(rectOnRoot.translated(-m_area.topLeft()));
        xcb_render_composite(
            m_xcb, operation, source, mask, m_target, 0, 0, 0, 0, to.x, to.y, to.width, to.height);
        if (mask != XCB_NONE)
            xcb_render_free_picture(m_xcb, mask);
        xcb_render_free_picture(m_xcb, source);
    }

    X11Connection& m_connection;
    xcb_connection_t* m_xcb;
    xcb_pixmap_t m_pixmap;
    QRect m_area;
    Formats m_formats;
    bool m_composited;
    xcb_render_picture_t m_target;
    xcb_xfixes_region_t m_holes; ///< Where the windows left out were, in pixels of the picture.
};

} // namespace

void paintWithout(X11Connection& connection, const X11Windows& windows, xcb_pixmap_t picture,
    QRect area, const QSet<xcb_window_t>& excludedTopLevels)
{
    const auto layers = visibleLayers(connection, windows.stack());
    QRect bounds;
    std::vector<xcb_rectangle_t> holes;
    for (const auto& layer : layers) {
        const QRect hidden = layer.rect & area;
        if (!excludedTopLevels.contains(layer.window) || hidden.isEmpty())
            continue;
        holes.push_back(rectangle(hidden.translated(-area.topLeft())));
        bounds |= hidden;
    }
    if (holes.empty())
        return;

    Painter painter(connection, picture, area, holes);
    painter.background(layers);
    for (const auto& layer : layers)
        if (!excludedTopLevels.contains(layer.window) && layer.rect.intersects(bounds))
            painter.layer(layer);
}
