// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Rows.h"
#include "platform/x11/X11Connection.h"

#include <QRect>

#include <optional>
#include <vector>

/// The pointer as it looks now, ready to be drawn into pictures.
class CursorImage final {
public:
    /// None when the server cannot tell (no XFIXES) or the pointer is invisible.
    static std::optional<CursorImage> current(X11Connection& connection);

    /// Draws the part that falls into some rows of a picture, which lie there on the root window.
    void drawInto(std::uint32_t* pixels, qsizetype pitch, QRect rowsOnRoot) const;

private:
    std::vector<std::uint32_t> m_pixels; ///< Premultiplied ARGB.
    QRect m_rect; ///< Pixels of the root window.
};
