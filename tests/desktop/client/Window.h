// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/desktop/XReply.h"
#include "tests/desktop/client/Options.h"

#include <string>
#include <vector>
#include <xcb/xcb.h>

/// The one window of desktop-client: paints itself, tells what happens to it on standard output.
class Window final {
public:
    Window(xcb_connection_t* connection, const Options& options);

    /// Handles what the server has sent; false when the window is gone.
    bool handleEvents();

    /// Does what a line of standard input asks for; false when that is to close.
    bool obey(const std::string& command);

private:
    void create();
    void describe(); ///< Sets the properties that tell other programs about it.
    void set(const char* property, xcb_atom_t type, const std::vector<std::uint32_t>& values);
    void setText(const char* property, const char* type, const std::string& text);

    bool handlePending(); ///< Whether there was anything.
    void handle(const xcb_generic_event_t& event);
    void handleKey(const xcb_key_press_event_t& key);
    void handleFocus(const xcb_focus_in_event_t& focus, const char* direction);
    void applyShape();
    void paint();
    void tellGeometry();
    bool isReady() const; ///< Shown, painted and known to the window manager.

    xcb_atom_t atom(const std::string& name) const;
    std::vector<std::uint32_t> property(xcb_window_t window, const char* name) const;
    void grabKeyboard(); ///< As an open menu does.
    void configure(std::uint16_t mask, const std::vector<std::uint32_t>& values);

    xcb_connection_t* m_connection;
    const xcb_screen_t* m_screen;
    Options m_options;
    xcb_window_t m_window = XCB_NONE;
    xcb_gcontext_t m_context = XCB_NONE;
    std::uint8_t m_depth = 0;
    int m_width, m_height;
    bool m_managed = false;
    bool m_open = true;
    bool m_damaged = false; ///< To be painted.
    bool m_painted = false; ///< Since it was mapped.
    bool m_told = false; ///< That it is mapped.
    std::string m_geometry; ///< The last one told.
};
