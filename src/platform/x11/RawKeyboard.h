// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/KeyCodes.h"
#include "platform/x11/X11Connection.h"

/// One key going down or up.
struct KeyChange {
    bool isPress = false;
    KeyPosition position = 0;
    std::uint16_t modifiers = 0; ///< Bits of the server's modifier state, locks included.
};

/// Keys as the keyboard sends them, past whoever has grabbed it. Off until enabled.
class RawKeyboard final {
public:
    /// @param connection on which Xkb was started.
    explicit RawKeyboard(std::shared_ptr<X11Connection> connection);

    void setEnabled(bool enabled); ///< Events read while it waits for replies stay in their queue.

    /// Looks at each event of the connection in turn. None for one that tells of no key.
    std::optional<KeyChange> read(const xcb_generic_event_t& event);

private:
    std::shared_ptr<X11Connection> m_connection;
    std::uint8_t m_extension = 0; ///< Its number at this server; 0 while off.
    std::uint16_t m_modifiers = 0; ///< These events do not tell them.
};
