// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/x11/X11Displays.h"

#include "platform/x11/DisplayScale.h"

#include <xcb/randr.h>

#include <algorithm>

namespace {

struct Monitor {
    DisplayId id;
    QString name;
    QRect native;
    bool primary;
};

QString atomName(xcb_connection_t* xcb, xcb_atom_t atom)
{
    const auto reply = owned(xcb_get_atom_name_reply(xcb, xcb_get_atom_name(xcb, atom), nullptr));
    return reply ? QString::fromUtf8(
               xcb_get_atom_name_name(reply.get()), xcb_get_atom_name_name_length(reply.get()))
                 : QString();
}

/// In the server's order. A server without RandR 1.5 is one monitor as large as the root window.
QList<Monitor> monitors(X11Connection& connection)
{
    xcb_connection_t* xcb = connection.xcb();
    QList<Monitor> monitors;
    const auto version
        = owned(xcb_randr_query_version_reply(xcb, xcb_randr_query_version(xcb, 1, 5), nullptr));
    const auto reply = version ? owned(xcb_randr_get_monitors_reply(
                           xcb, xcb_randr_get_monitors(xcb, connection.root(), 1), nullptr))
                               : nullptr;
    if (reply)
        for (auto it = xcb_randr_get_monitors_monitors_iterator(reply.get()); it.rem;
             xcb_randr_monitor_info_next(&it)) {
            const QRect native(it.data->x, it.data->y, it.data->width, it.data->height);
            if (!native.isEmpty())
                monitors.push_back(
                    {it.data->name, atomName(xcb, it.data->name), native, it.data->primary != 0});
        }
    const QRect root({}, connection.rootSize());
    if (monitors.isEmpty() && !root.isEmpty())
        monitors.push_back({1, QStringLiteral("default"), root, true});
    return monitors;
}

} // namespace

QList<DisplayInfo> X11Displays::list() const
{
    const auto resources
        = m_connection->text(m_connection->property(m_connection->root(), "RESOURCE_MANAGER"));
    const auto settings = ScaleSettings::ofEnvironment(resources);
    const auto found = monitors(*m_connection);

    QList<DisplayInfo> displays;
    for (qsizetype i = 0; i < found.size(); ++i) {
        const DisplayInfo display {
            found[i].id, found[i].name, found[i].native, settings.scaleOf(found[i].name, i), {}};
        displays.insert(found[i].primary ? 0 : displays.size(), display);
    }
    // Points as the toolkit lays them out: the top left corner of a screen stays where it is in
    // pixels, only its extent shrinks; then turned upwards from the foot of the primary screen.
    for (auto& display : displays) {
        const double primaryHeight = displays[0].native.height() / displays[0].scale;
        const QSizeF size = QSizeF(display.native.size()) / display.scale;
        const double bottom = primaryHeight - (display.native.y() + size.height());
        display.points = QRectF(QPointF(display.native.x(), bottom), size);
    }
    return displays;
}

QPoint X11Displays::pointer() const
{
    const auto reply = owned(xcb_query_pointer_reply(m_connection->xcb(),
        xcb_query_pointer(m_connection->xcb(), m_connection->root()), nullptr));
    return reply ? QPoint(reply->root_x, reply->root_y) : QPoint();
}
