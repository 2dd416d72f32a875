// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/desktop/XDisplay.h"

#include "platform/x11/Reply.h"
#include "tests/desktop/Waiting.h"

#include <QPainter>

#include <optional>
#include <sys/uio.h>
#include <xcb/randr.h>
#include <xcb/xcbext.h>

namespace {

/// The server's output if no monitor that was set has taken it yet.
std::optional<xcb_randr_output_t> freeOutput(xcb_connection_t* connection, xcb_window_t root)
{
    const auto monitors = owned(xcb_randr_get_monitors_reply(
        connection, xcb_randr_get_monitors(connection, root, 1), nullptr));
    const auto resources = owned(xcb_randr_get_screen_resources_current_reply(
        connection, xcb_randr_get_screen_resources_current(connection, root), nullptr));
    if (!monitors || !resources || resources->num_outputs == 0)
        return {};
    for (auto each = xcb_randr_get_monitors_monitors_iterator(monitors.get()); each.rem;
         xcb_randr_monitor_info_next(&each))
        if (!each.data->automatic && each.data->nOutput > 0)
            return {};
    return *xcb_randr_get_screen_resources_current_outputs(resources.get());
}

/// RRSetMonitor, put together by hand: xcb_randr_set_monitor of libxcb 1.15 sends a wrong length,
/// upon which the connection closes.
bool setMonitor(xcb_connection_t* connection, xcb_window_t root,
    const xcb_randr_monitor_info_t& info, std::optional<xcb_randr_output_t> output)
{
    struct {
        xcb_randr_set_monitor_request_t head {};
        xcb_randr_monitor_info_t info {};
        xcb_randr_output_t output = XCB_NONE;
    } request;
    request.head.window = root;
    request.info = info;
    request.output = output.value_or(XCB_NONE);
    xcb_protocol_request_t protocol {
        .count = 1, .ext = &xcb_randr_id, .opcode = XCB_RANDR_SET_MONITOR, .isvoid = 1};
    iovec parts[3] {}; // The library wants room for two parts of its own before the first.
    parts[2] = {&request, sizeof request - (output ? 0 : sizeof request.output)};
    const xcb_void_cookie_t cookie {
        xcb_send_request(connection, XCB_REQUEST_CHECKED, parts + 2, &protocol)};
    return !owned(xcb_request_check(connection, cookie)) && !xcb_connection_has_error(connection);
}

} // namespace

Result<void> XDisplay::connect(const QString& name)
{
    m_name = name;
    m_connection.reset(xcb_connect(name.toLatin1().constData(), nullptr));
    if (xcb_connection_has_error(connection()))
        return Error::failed(QStringLiteral("No connection to the display %1.").arg(name));
    m_screen = xcb_setup_roots_iterator(xcb_get_setup(connection())).data;
    return {};
}

void XDisplay::sync() const
{
    owned(xcb_get_input_focus_reply(connection(), xcb_get_input_focus(connection()), nullptr));
}

xcb_atom_t XDisplay::atom(const QByteArray& name) const
{
    const auto cookie = xcb_intern_atom(connection(), 0, quint16(name.size()), name.constData());
    const auto reply = owned(xcb_intern_atom_reply(connection(), cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}

bool XDisplay::isOwned(const QByteArray& selection) const
{
    const auto reply = owned(xcb_get_selection_owner_reply(
        connection(), xcb_get_selection_owner(connection(), atom(selection)), nullptr));
    return reply && reply->owner != XCB_NONE;
}

std::vector<quint32> XDisplay::property(xcb_window_t window, const QByteArray& name) const
{
    const auto cookie
        = xcb_get_property(connection(), 0, window, atom(name), XCB_ATOM_ANY, 0, 1 << 20);
    const auto reply = owned(xcb_get_property_reply(connection(), cookie, nullptr));
    if (!reply || reply->format != 32)
        return {};
    const auto* values = static_cast<const quint32*>(xcb_get_property_value(reply.get()));
    return {values, values + reply->value_len};
}

QPoint XDisplay::pointer() const
{
    const auto reply = owned(xcb_query_pointer_reply(
        connection(), xcb_query_pointer(connection(), screen().root), nullptr));
    return reply ? QPoint(reply->root_x, reply->root_y) : QPoint();
}

QImage XDisplay::rootPixels(QRect rectangle) const
{
    const QRect all(0, 0, screen().width_in_pixels, screen().height_in_pixels);
    const QRect part = rectangle.isNull() ? all : rectangle;
    if (part.isEmpty() || !all.contains(part))
        return {};
    const auto cookie = xcb_get_image(connection(), XCB_IMAGE_FORMAT_Z_PIXMAP, screen().root,
        qint16(part.x()), qint16(part.y()), quint16(part.width()), quint16(part.height()), ~0u);
    auto reply = owned(xcb_get_image_reply(connection(), cookie, nullptr));
    if (!reply)
        return {};
    auto* const kept = reply.release(); // The image frees it.
    return QImage(
        xcb_get_image_data(kept), part.width(), part.height(), qsizetype(part.width()) * 4,
        QImage::Format_RGB32, [](void* memory) { std::free(memory); }, kept);
}

bool XDisplay::waitForPixel(QPoint position, QRgb colour) const
{
    return waitFor([&] {
        const QImage pixel = rootPixels(QRect(position, QSize(1, 1)));
        return !pixel.isNull() && (pixel.pixel(0, 0) & RGB_MASK) == (colour & RGB_MASK);
    });
}

void XDisplay::put(xcb_drawable_t where, quint8 depth, const QImage& image) const
{
    const xcb_gcontext_t context = xcb_generate_id(connection());
    xcb_create_gc(connection(), context, where, 0, nullptr);
    constexpr int strip = 128; // Rows; a request holds at most 16 MiB.
    for (int y = 0; y < image.height(); y += strip) {
        const int rows = qMin(strip, image.height() - y);
        xcb_put_image(connection(), XCB_IMAGE_FORMAT_Z_PIXMAP, where, context,
            quint16(image.width()), quint16(rows), 0, qint16(y), 0, depth,
            quint32(image.bytesPerLine() * rows), image.constScanLine(y));
    }
    xcb_free_gc(connection(), context);
}

void XDisplay::setRootPicture(const QImage& picture)
{
    const QSize size(screen().width_in_pixels, screen().height_in_pixels);
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter(&image).drawImage(0, 0, picture);

    const xcb_pixmap_t pixmap = xcb_generate_id(connection());
    xcb_create_pixmap(connection(), screen().root_depth, pixmap, screen().root,
        quint16(size.width()), quint16(size.height()));
    put(pixmap, screen().root_depth, image);
    xcb_change_window_attributes(connection(), screen().root, XCB_CW_BACK_PIXMAP, &pixmap);
    xcb_clear_area(connection(), 0, screen().root, 0, 0, 0, 0);
    for (const char* name : {"_XROOTPMAP_ID", "ESETROOT_PMAP_ID"})
        xcb_change_property(connection(), XCB_PROP_MODE_REPLACE, screen().root, atom(name),
            XCB_ATOM_PIXMAP, 32, 1, &pixmap);
    if (m_picture)
        xcb_free_pixmap(connection(), m_picture);
    m_picture = pixmap;
    sync();
}

Result<void> XDisplay::addMonitor(const Monitor& monitor)
{
    owned(xcb_randr_query_version_reply(
        connection(), xcb_randr_query_version(connection(), 1, 5), nullptr));
    const auto millimetres = [](int pixels) { return quint32(pixels * 254 / 960); }; // 96 dpi
    const auto output = freeOutput(connection(), screen().root);
    xcb_randr_monitor_info_t info {};
    info.name = atom(monitor.name.toUtf8());
    info.primary = output.has_value();
    info.nOutput = output.has_value();
    info.x = qint16(monitor.rectangle.x());
    info.y = qint16(monitor.rectangle.y());
    info.width = quint16(monitor.rectangle.width());
    info.height = quint16(monitor.rectangle.height());
    info.width_in_millimeters = millimetres(monitor.rectangle.width());
    info.height_in_millimeters = millimetres(monitor.rectangle.height());
    if (setMonitor(connection(), screen().root, info, output))
        return {};
    return Error::failed(QStringLiteral("The server refuses the monitor %1.").arg(monitor.name));
}

Result<void> XDisplay::removeMonitor(const QString& name)
{
    const auto cookie
        = xcb_randr_delete_monitor_checked(connection(), screen().root, atom(name.toUtf8()));
    if (owned(xcb_request_check(connection(), cookie)))
        return Error::failed(QStringLiteral("There is no monitor %1.").arg(name));
    return {};
}
