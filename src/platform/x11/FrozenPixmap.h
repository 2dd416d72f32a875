// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Rows.h"
#include "platform/x11/CursorImage.h"
#include "platform/x11/SharedSegment.h"

#include <array>

/// Part of a drawable, copied inside the server in one request, so that no later drawing tears it,
/// and fetched from there strip by strip while the one before is worked on.
class FrozenPixmap final : public RowSource {
public:
    /// @param rect what to copy, in pixels of the drawable; must lie inside it.
    /// @param rootOrigin where rect's corner lies on the root window; only a cursor needs it.
    static Result<std::shared_ptr<FrozenPixmap>> copy(std::shared_ptr<X11Connection> connection,
        xcb_drawable_t drawable, int depth, QRect rect, QPoint rootOrigin);
    ~FrozenPixmap() override;
    FrozenPixmap(const FrozenPixmap&) = delete;
    FrozenPixmap& operator=(const FrozenPixmap&) = delete;

    xcb_pixmap_t pixmap() const { return m_pixmap; }

    /// Reads through shared memory from now on; no two pictures may use a segment at a time.
    void readThrough(std::shared_ptr<SharedSegment> segment) { m_segment = std::move(segment); }
    void draw(CursorImage cursor) { m_cursor = std::move(cursor); }

    QSize size() const override { return m_size; }
    PixelFormat format() const override { return m_format; }
    Result<Rows> rows(int y, int most) override;

private:
    struct Strip {
        int y = 0;
        int count = 0; ///< 0: holds nothing.
        bool arrived = false;
        xcb_shm_get_image_cookie_t shared {};
        xcb_get_image_cookie_t plain {};
        Reply<xcb_get_image_reply_t> reply; ///< Keeps the pixels where no memory is shared.
        std::uint32_t* pixels = nullptr;

        bool holds(int row) const { return row >= y && row < y + count; }
    };

    FrozenPixmap(std::shared_ptr<X11Connection> connection, int depth, QRect rect, QPoint origin);
    int rowsPerStrip() const;
    void request(std::size_t slot, int y, int count);
    bool receive(Strip& strip);
    void forget(Strip& strip);

    std::shared_ptr<X11Connection> m_connection;
    std::shared_ptr<SharedSegment> m_segment;
    std::optional<CursorImage> m_cursor;
    xcb_pixmap_t m_pixmap;
    QSize m_size;
    QPoint m_rootOrigin;
    PixelFormat m_format;
    std::array<Strip, 2> m_strips;
    std::size_t m_current = 0;
};
