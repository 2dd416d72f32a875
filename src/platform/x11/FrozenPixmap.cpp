// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/x11/FrozenPixmap.h"

#include "base/Words.h"

#include <algorithm>

namespace {

/// Strips that travel in replies: large enough to amortise a round trip, small enough for a cache.
constexpr std::size_t plainStripBytes = 1 << 20;

} // namespace

Result<std::shared_ptr<FrozenPixmap>> FrozenPixmap::copy(std::shared_ptr<X11Connection> connection,
    xcb_drawable_t drawable, int depth, QRect rect, QPoint rootOrigin)
{
    xcb_connection_t* xcb = connection->xcb();
    std::shared_ptr<FrozenPixmap> frozen(new FrozenPixmap(connection, depth, rect, rootOrigin));
    const auto created = xcb_create_pixmap_checked(xcb, std::uint8_t(depth), frozen->m_pixmap,
        connection->root(), std::uint16_t(rect.width()), std::uint16_t(rect.height()));
    const xcb_gcontext_t context = xcb_generate_id(xcb);
    const std::uint32_t values[] = {XCB_SUBWINDOW_MODE_INCLUDE_INFERIORS, 0};
    xcb_create_gc(
        xcb, context, frozen->m_pixmap, XCB_GC_SUBWINDOW_MODE | XCB_GC_GRAPHICS_EXPOSURES, values);
    const auto copied = xcb_copy_area_checked(xcb, drawable, frozen->m_pixmap, context,
        std::int16_t(rect.x()), std::int16_t(rect.y()), 0, 0, std::uint16_t(rect.width()),
        std::uint16_t(rect.height()));
    xcb_free_gc(xcb, context);
    // Looked at before reading: after a failed copy the pixmap holds whatever memory held before.
    const auto createError = owned(xcb_request_check(xcb, created));
    const auto copyError = owned(xcb_request_check(xcb, copied));
    if (createError || copyError || xcb_connection_has_error(xcb))
        return connection->failure(createError
                ? Words::tr("The display has no memory left for a picture of this size.")
                : Words::tr("The window is gone."));
    return frozen;
}

FrozenPixmap::FrozenPixmap(
    std::shared_ptr<X11Connection> connection, int depth, QRect rect, QPoint origin)
    : m_connection(std::move(connection))
    , m_pixmap(xcb_generate_id(m_connection->xcb()))
    , m_size(rect.size())
    , m_rootOrigin(origin)
    , m_format(depth == 32 ? PixelFormat::Argb32Premultiplied : PixelFormat::Rgb32)
{
}

FrozenPixmap::~FrozenPixmap()
{
    for (auto& strip : m_strips)
        forget(strip);
    xcb_free_pixmap(m_connection->xcb(), m_pixmap);
    xcb_flush(m_connection->xcb());
    m_connection->discardEvents();
}

int FrozenPixmap::rowsPerStrip() const
{
    const std::size_t bytes = m_segment ? m_segment->size() / m_strips.size() : plainStripBytes;
    return std::max(1, int(bytes / (std::size_t(m_size.width()) * 4)));
}

void FrozenPixmap::request(std::size_t slot, int y, int count)
{
    Strip& strip = m_strips[slot];
    forget(strip);
    strip.y = y;
    strip.count = std::min(count, m_size.height() - y);
    strip.arrived = false;
    const auto width = std::uint16_t(m_size.width()), height = std::uint16_t(strip.count);
    if (m_segment) {
        const auto offset = std::uint32_t(slot * (m_segment->size() / m_strips.size()));
        strip.pixels = reinterpret_cast<std::uint32_t*>(m_segment->data() + offset);
        strip.shared = xcb_shm_get_image(m_connection->xcb(), m_pixmap, 0, std::int16_t(y), width,
            height, ~0u, XCB_IMAGE_FORMAT_Z_PIXMAP, m_segment->id(), offset);
    } else {
        strip.plain = xcb_get_image(m_connection->xcb(), XCB_IMAGE_FORMAT_Z_PIXMAP, m_pixmap, 0,
            std::int16_t(y), width, height, ~0u);
    }
    xcb_flush(m_connection->xcb());
}

bool FrozenPixmap::receive(Strip& strip)
{
    if (strip.arrived)
        return true;
    if (m_segment) {
        strip.arrived
            = owned(xcb_shm_get_image_reply(m_connection->xcb(), strip.shared, nullptr)) != nullptr;
    } else {
        strip.reply = owned(xcb_get_image_reply(m_connection->xcb(), strip.plain, nullptr));
        strip.arrived = strip.reply != nullptr;
        if (strip.arrived)
            strip.pixels = reinterpret_cast<std::uint32_t*>(xcb_get_image_data(strip.reply.get()));
    }
    if (strip.arrived && m_cursor)
        m_cursor->drawInto(strip.pixels, m_size.width(),
            QRect(m_rootOrigin + QPoint(0, strip.y), QSize(m_size.width(), strip.count)));
    return strip.arrived;
}

/// A strip on its way still has to be awaited: the server would write into memory used anew.
void FrozenPixmap::forget(Strip& strip)
{
    if (strip.count && !strip.arrived)
        receive(strip);
    strip = {};
}

Result<Rows> FrozenPixmap::rows(int y, int most)
{
    const std::size_t other = 1 - m_current;
    if (!m_strips[m_current].holds(y)) {
        // Whoever reads on where it stopped gets whole strips, the next one always on its way;
        // whoever jumps about, to sample, gets just what it asked for.
        const bool readsOn = y > 0 && y == m_strips[m_current].y + m_strips[m_current].count;
        if (!m_strips[other].holds(y))
            request(other, y, readsOn || most >= rowsPerStrip() ? rowsPerStrip() : most);
        m_current = other;
        const int next = y + m_strips[other].count;
        if (receive(m_strips[m_current]) && readsOn && next < m_size.height())
            request(1 - m_current, next, rowsPerStrip());
    }
    Strip& strip = m_strips[m_current];
    if (!receive(strip)) {
        strip.count = 0;
        return m_connection->failure(Words::tr("The display did not hand over the picture."));
    }
    return Rows {strip.pixels + qsizetype(y - strip.y) * m_size.width(), m_size.width(),
        m_size.width(), std::min(most, strip.y + strip.count - y)};
}
