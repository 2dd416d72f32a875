// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/desktop/XDisplay.h"

#include "platform/x11/Reply.h"
#include "tests/desktop/Waiting.h"

#include <QPainter>

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
