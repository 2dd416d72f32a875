// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/x11/X11Windows.h"

#include <xcb/res.h>

#include <QFile>
#include <QSet>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

/// Where kinds of windows stand, after the layers of the window server that this seam mirrors.
enum Layer {
    DesktopLayer = -1,
    OrdinaryLayer = 0,
    FloatingLayer = 3,
    PanelLayer = 20,
    MenuLayer = 101
};

constexpr std::array<std::pair<const char*, Layer>, 14> layersOfTypes {{
    {"_NET_WM_WINDOW_TYPE_NORMAL", OrdinaryLayer},
    {"_NET_WM_WINDOW_TYPE_DIALOG", OrdinaryLayer},
    {"_NET_WM_WINDOW_TYPE_UTILITY", OrdinaryLayer},
    {"_NET_WM_WINDOW_TYPE_DESKTOP", DesktopLayer},
    {"_NET_WM_WINDOW_TYPE_DOCK", PanelLayer},
    {"_NET_WM_WINDOW_TYPE_TOOLBAR", FloatingLayer},
    {"_NET_WM_WINDOW_TYPE_MENU", FloatingLayer},
    {"_NET_WM_WINDOW_TYPE_SPLASH", FloatingLayer},
    {"_NET_WM_WINDOW_TYPE_NOTIFICATION", MenuLayer},
    {"_NET_WM_WINDOW_TYPE_TOOLTIP", MenuLayer},
    {"_NET_WM_WINDOW_TYPE_DROPDOWN_MENU", MenuLayer},
    {"_NET_WM_WINDOW_TYPE_POPUP_MENU", MenuLayer},
    {"_NET_WM_WINDOW_TYPE_COMBO", MenuLayer},
    {"_NET_WM_WINDOW_TYPE_DND", MenuLayer},
}};

/// A window lists its types by preference; the first one known to us counts, none means ordinary.
int layerOf(X11Connection& connection, std::span<const std::uint32_t> types)
{
    for (const auto type : types)
        for (const auto& [name, layer] : layersOfTypes)
            if (connection.atom(name) == type)
                return layer;
    return OrdinaryLayer;
}

QMargins marginsOf(const std::vector<std::uint32_t>& leftRightTopBottom)
{
    if (leftRightTopBottom.size() != 4)
        return {};
    const auto& m = leftRightTopBottom;
    return {int(m[0]), int(m[2]), int(m[1]), int(m[3])};
}

/// Asks the server, which knows the process of every local client, before the window's own word.
qint64 processIdOf(xcb_connection_t* xcb, xcb_res_query_client_ids_cookie_t cookie,
    const std::vector<std::uint32_t>& declared)
{
    const auto reply = owned(xcb_res_query_client_ids_reply(xcb, cookie, nullptr));
    if (reply)
        for (auto it = xcb_res_query_client_ids_ids_iterator(reply.get()); it.rem;
             xcb_res_client_id_value_next(&it))
            if (it.data->spec.mask & XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID
                && xcb_res_client_id_value_value_length(it.data) > 0)
                return *xcb_res_client_id_value_value(it.data);
    return declared.empty() ? 0 : declared[0];
}

QString commandOf(qint64 processId)
{
    QFile file(u"/proc/%1/comm"_s.arg(processId));
    return processId && file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll().trimmed())
                                                       : QString();
}

/// The requests for what describes one window, sent before any answer is awaited.
struct Description {
    Description(X11Connection& connection, xcb_window_t window)
        : netName(connection.property(window, "_NET_WM_NAME"))
        , name(connection.property(window, "WM_NAME"))
        , windowClass(connection.property(window, "WM_CLASS"))
        , types(connection.property(window, "_NET_WM_WINDOW_TYPE"))
        , processId(connection.property(window, "_NET_WM_PID"))
        , own(connection.property(window, ownWindowProperty))
    {
        const xcb_res_client_id_spec_t spec {window, XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID};
        clientIds = xcb_res_query_client_ids(connection.xcb(), 1, &spec);
    }

    xcb_get_property_cookie_t netName, name, windowClass, types, processId, own;
    xcb_res_query_client_ids_cookie_t clientIds {};
};

Window described(X11Connection& connection, DesktopEntries& entries, const X11Window& window,
    const Description& asked)
{
    const QByteArray netName = connection.text(asked.netName);
    const QByteArray name = connection.text(asked.name);
    const auto classes = connection.text(asked.windowClass).split('\0'); // instance, class, ""
    const auto types = connection.words(asked.types);
    const auto declaredId = connection.words(asked.processId);
    const bool own = !connection.words(asked.own).empty();

    Window result;
    result.id = window.client;
    result.title = netName.isEmpty() ? QString::fromLatin1(name) : QString::fromUtf8(netName);
    result.frame = window.frame();
    result.layer = window.overrideRedirect ? MenuLayer : layerOf(connection, types);
    result.onScreen = window.viewable;
    result.application.processId = processIdOf(connection.xcb(), asked.clientIds, declaredId);

    const QString windowClass = QString::fromUtf8(classes.value(1));
    const auto entry = entries.find(windowClass, QString::fromUtf8(classes.value(0)));
    const QString fallback
        = windowClass.isEmpty() ? commandOf(result.application.processId) : windowClass;
    result.application.id = own ? QString(ownApplicationId) : entry ? entry->id : windowClass;
    result.application.name = entry ? entry->name : fallback;
    return result;
}

} // namespace

QRect X11Window::frame() const
{
    if (!ownShadow.isNull())
        return clientRect.marginsRemoved(ownShadow);
    // Some managers pad their frame with an invisible border to grab it by; the extents tell.
    if (!m_serverFrame.isNull())
        return clientRect.marginsAdded(m_serverFrame) & topLevelRect;
    return topLevelRect;
}

std::vector<xcb_window_t> X11Windows::stack() const
{
    const auto tree = owned(xcb_query_tree_reply(
        m_connection->xcb(), xcb_query_tree(m_connection->xcb(), m_connection->root()), nullptr));
    if (!tree)
        return {};
    const xcb_window_t* children = xcb_query_tree_children(tree.get());
    std::vector<xcb_window_t> stack(
        children, children + xcb_query_tree_children_length(tree.get()));
    std::reverse(stack.begin(), stack.end());
    return stack;
}

std::vector<xcb_window_t> X11Windows::clients()
{
    auto clients = m_connection->words(
        m_connection->property(m_connection->root(), "_NET_CLIENT_LIST_STACKING"));
    if (clients.empty())
        clients
            = m_connection->words(m_connection->property(m_connection->root(), "_NET_CLIENT_LIST"));
    return clients;
}

/// A client stands for the child of the root window that holds it; a child without one, such as a
/// menu or every window where no manager runs, stands for itself.
X11Windows::Stacked X11Windows::stacked()
{
    const auto managed = clients();
    const auto tops = topLevels(managed);
    QHash<xcb_window_t, xcb_window_t> clientOf;
    for (std::size_t i = 0; i < managed.size(); ++i)
        clientOf.insert(tops[i], managed[i]);

    Stacked result;
    const auto front = stack();
    for (std::size_t i = 0; i < front.size(); ++i) {
        const xcb_window_t window = clientOf.value(front[i], front[i]);
        result.windows.push_back(window);
        result.positions.insert(window, int(i));
    }
    return result;
}

std::vector<xcb_window_t> X11Windows::topLevels(std::span<const xcb_window_t> windows) const
{
    std::vector<xcb_window_t> tops(windows.begin(), windows.end());
    std::vector<std::size_t> climbing(windows.size());
    for (std::size_t i = 0; i < climbing.size(); ++i)
        climbing[i] = i;

    while (!climbing.empty()) { // One round trip for each level of nesting, not for each window.
        std::vector<xcb_query_tree_cookie_t> cookies;
        for (const auto i : climbing)
            cookies.push_back(xcb_query_tree(m_connection->xcb(), tops[i]));
        std::vector<std::size_t> further;
        for (std::size_t k = 0; k < climbing.size(); ++k) {
            const auto tree = owned(xcb_query_tree_reply(m_connection->xcb(), cookies[k], nullptr));
            auto& top = tops[climbing[k]];
            if (!tree || tree->parent == XCB_WINDOW_NONE) {
                top = XCB_WINDOW_NONE;
            } else if (tree->parent != m_connection->root()) {
                top = tree->parent;
                further.push_back(climbing[k]);
            }
        }
        climbing = std::move(further);
    }
    return tops;
}

std::vector<X11Window> X11Windows::locate(std::span<const xcb_window_t> windows)
{
    xcb_connection_t* xcb = m_connection->xcb();
    const auto tops = topLevels(windows);

    struct Asked {
        xcb_get_geometry_cookie_t geometry, topGeometry;
        xcb_translate_coordinates_cookie_t origin;
        xcb_get_window_attributes_cookie_t attributes;
        xcb_get_property_cookie_t serverFrame, clientShadow;
    };
    std::vector<Asked> asked;
    for (std::size_t i = 0; i < windows.size(); ++i)
        asked.push_back({xcb_get_geometry(xcb, windows[i]), xcb_get_geometry(xcb, tops[i]),
            xcb_translate_coordinates(xcb, windows[i], m_connection->root(), 0, 0),
            xcb_get_window_attributes(xcb, windows[i]),
            m_connection->property(windows[i], "_NET_FRAME_EXTENTS"),
            m_connection->property(windows[i], "_GTK_FRAME_EXTENTS")});

    std::vector<X11Window> located(windows.size());
    for (std::size_t i = 0; i < windows.size(); ++i) {
        const auto geometry = owned(xcb_get_geometry_reply(xcb, asked[i].geometry, nullptr));
        const auto top = owned(xcb_get_geometry_reply(xcb, asked[i].topGeometry, nullptr));
        const auto origin = owned(xcb_translate_coordinates_reply(xcb, asked[i].origin, nullptr));
        const auto attributes
            = owned(xcb_get_window_attributes_reply(xcb, asked[i].attributes, nullptr));
        auto& window = located[i];
        window.client = windows[i];
        window.m_serverFrame = marginsOf(m_connection->words(asked[i].serverFrame));
        window.ownShadow = marginsOf(m_connection->words(asked[i].clientShadow));
        if (!geometry || !top || !origin || !attributes)
            continue;
        const int border = 2 * top->border_width;
        window.topLevel = tops[i];
        window.topLevelDepth = top->depth;
        window.clientRect = QRect(origin->dst_x, origin->dst_y, geometry->width, geometry->height);
        window.topLevelRect = QRect(top->x, top->y, top->width + border, top->height + border);
        window.viewable = attributes->map_state == XCB_MAP_STATE_VIEWABLE
            && attributes->_class == XCB_WINDOW_CLASS_INPUT_OUTPUT;
        window.overrideRedirect = attributes->override_redirect != 0;
    }
    return located;
}

QList<Window> X11Windows::list()
{
    const auto managed = clients();
    const QSet<xcb_window_t> isManaged(managed.begin(), managed.end());
    std::vector<X11Window> shown;
    for (const auto& window : locate(stacked().windows))
        if (window.topLevel != XCB_WINDOW_NONE && !window.frame().isEmpty()
            && (window.viewable || isManaged.contains(window.client)))
            shown.push_back(window);
    std::stable_partition(
        shown.begin(), shown.end(), [](const X11Window& window) { return window.viewable; });

    return describe(shown);
}

std::optional<Window> X11Windows::find(xcb_window_t window)
{
    const auto located = locate(std::array {window});
    return located[0].topLevel ? std::optional(describe(located).first()) : std::nullopt;
}

QList<Window> X11Windows::describe(std::span<const X11Window> windows)
{
    std::vector<Description> asked;
    for (const auto& window : windows)
        asked.emplace_back(*m_connection, window.client);
    QList<Window> result;
    for (std::size_t i = 0; i < windows.size(); ++i)
        result.push_back(described(*m_connection, m_desktopEntries, windows[i], asked[i]));
    return result;
}

QHash<WindowId, int> X11Windows::frontToBackOrder()
{
    return stacked().positions;
}
