// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/x11/CursorImage.h"

#include "base/Blend.h"

#include <xcb/xfixes.h>

std::optional<CursorImage> CursorImage::current(X11Connection& connection)
{
    xcb_connection_t* xcb = connection.xcb();
    const auto version
        = owned(xcb_xfixes_query_version_reply(xcb, xcb_xfixes_query_version(xcb, 5, 0), nullptr));
    const auto reply = version
        ? owned(xcb_xfixes_get_cursor_image_reply(xcb, xcb_xfixes_get_cursor_image(xcb), nullptr))
        : nullptr;
    if (!reply || reply->width == 0 || reply->height == 0)
        return std::nullopt;
    CursorImage cursor;
    const std::uint32_t* pixels = xcb_xfixes_get_cursor_image_cursor_image(reply.get());
    cursor.m_pixels.assign(pixels, pixels + reply->width * reply->height);
    cursor.m_rect
        = QRect(reply->x - reply->xhot, reply->y - reply->yhot, reply->width, reply->height);
    return cursor;
}

void CursorImage::drawInto(std::uint32_t* pixels, qsizetype pitch, QRect rowsOnRoot) const
{
    const QRect common = m_rect & rowsOnRoot;
    for (int y = common.top(); y <= common.bottom(); ++y) {
        std::uint32_t* row = pixels + (y - rowsOnRoot.y()) * pitch;
        const std::uint32_t* cursorRow
            = m_pixels.data() + qsizetype(y - m_rect.y()) * m_rect.width();
        for (int x = common.left(); x <= common.right(); ++x) {
            auto& pixel = row[x - rowsOnRoot.x()];
            pixel = blendOver(cursorRow[x - m_rect.x()], pixel);
        }
    }
}
