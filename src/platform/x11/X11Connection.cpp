// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/x11/X11Connection.h"

#include "base/Words.h"

#include <cstring>

namespace {

constexpr std::uint32_t longestProperty = 1 << 20; // In words.

/// Whether pixels arrive as native 0xRRGGBB words, which all pixel code of ours relies on.
bool hasNativePixels(xcb_connection_t* xcb, const xcb_screen_t& screen)
{
    const xcb_setup_t* setup = xcb_get_setup(xcb);
    const int host = std::endian::native == std::endian::little ? XCB_IMAGE_ORDER_LSB_FIRST
                                                                : XCB_IMAGE_ORDER_MSB_FIRST;
    if (setup->image_byte_order != host || screen.root_depth != 24)
        return false;
    for (auto it = xcb_setup_pixmap_formats_iterator(setup); it.rem; xcb_format_next(&it))
        if (it.data->depth == screen.root_depth && it.data->bits_per_pixel == 32)
            return true;
    return false;
}

} // namespace

Result<std::shared_ptr<X11Connection>> X11Connection::open()
{
    const QString display = qEnvironmentVariable("DISPLAY");
    if (display.isEmpty())
        return Error::failed(Words::tr("There is no desktop to capture: DISPLAY is not set."));
    int screen = 0;
    xcb_connection_t* xcb = xcb_connect(nullptr, &screen);
    std::shared_ptr<X11Connection> connection(new X11Connection(xcb, screen));
    if (xcb_connection_has_error(xcb))
        return Error::failed(Words::tr("Cannot connect to the display %1.").arg(display));
    if (!hasNativePixels(xcb, connection->screen()))
        return Error::failed(Words::tr(
            "The display %1 has a colour depth other than 24 bits, which is not supported.")
                                 .arg(display));
    return connection;
}

X11Connection::X11Connection(xcb_connection_t* xcb, int screen)
    : m_xcb(xcb)
    , m_screenNumber(screen)
{
    if (xcb_connection_has_error(xcb))
        return;
    auto it = xcb_setup_roots_iterator(xcb_get_setup(xcb));
    for (int i = 0; i < screen && it.rem > 1; ++i)
        xcb_screen_next(&it);
    m_screen = it.data;
}

X11Connection::~X11Connection()
{
    xcb_disconnect(m_xcb);
}

QSize X11Connection::rootSize() const
{
    const auto geometry
        = owned(xcb_get_geometry_reply(m_xcb, xcb_get_geometry(m_xcb, root()), nullptr));
    return geometry ? QSize(geometry->width, geometry->height) : QSize();
}

xcb_atom_t X11Connection::atom(const char* name)
{
    xcb_atom_t& known = m_atoms[QByteArray::fromRawData(name, qsizetype(std::strlen(name)))];
    if (known == XCB_ATOM_NONE) {
        const auto cookie = xcb_intern_atom(m_xcb, 0, std::uint16_t(std::strlen(name)), name);
        if (const auto reply = owned(xcb_intern_atom_reply(m_xcb, cookie, nullptr)))
            known = reply->atom;
    }
    return known;
}

xcb_get_property_cookie_t X11Connection::property(xcb_window_t window, const char* name)
{
    return xcb_get_property(m_xcb, 0, window, atom(name), XCB_ATOM_ANY, 0, longestProperty);
}

std::vector<std::uint32_t> X11Connection::words(xcb_get_property_cookie_t cookie) const
{
    const auto reply = owned(xcb_get_property_reply(m_xcb, cookie, nullptr));
    if (!reply || reply->format != 32)
        return {};
    const auto* first = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
    return {first, first + reply->value_len};
}

QByteArray X11Connection::text(xcb_get_property_cookie_t cookie) const
{
    const auto reply = owned(xcb_get_property_reply(m_xcb, cookie, nullptr));
    if (!reply || reply->format != 8)
        return {};
    return {
        static_cast<const char*>(xcb_get_property_value(reply.get())), qsizetype(reply->value_len)};
}

bool X11Connection::isComposited()
{
    const QByteArray name = "_NET_WM_CM_S" + QByteArray::number(m_screenNumber);
    const auto cookie = xcb_intern_atom(m_xcb, 0, std::uint16_t(name.size()), name.constData());
    const auto selection = owned(xcb_intern_atom_reply(m_xcb, cookie, nullptr));
    if (!selection)
        return false;
    const auto owner = owned(xcb_get_selection_owner_reply(
        m_xcb, xcb_get_selection_owner(m_xcb, selection->atom), nullptr));
    return owner && owner->owner != XCB_WINDOW_NONE;
}

Error X11Connection::failure(const QString& otherwise) const
{
    return Error::failed(xcb_connection_has_error(m_xcb)
            ? Words::tr("The connection to the display was lost.")
            : otherwise);
}

void X11Connection::discardEvents() const
{
    while (owned(xcb_poll_for_event(m_xcb))) { }
}
