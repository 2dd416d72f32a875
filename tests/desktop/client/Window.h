// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/desktop/XDisplay.h"
#include "tests/desktop/client/Look.h"

/// What desktop-client was asked for on its command line.
struct ClientOptions {
    QByteArray title;
    QByteArray instance, className;
    QByteArray type; ///< Such as "DIALOG"; empty: no property.
    QRect geometry; ///< Without any frame, native root pixels.
    Look look;
    bool overrideRedirect = false;
    bool shaped = false;
    bool withPid = true;
    bool own = false; ///< Marked as a window of Pixmallow.
    bool fullscreen = false;
    bool minimized = false;
};

/// The one window of desktop-client: paints itself, tells what happens to it on standard output.
class Window final : public XDisplay {
public:
    explicit Window(ClientOptions options)
        : m_options(std::move(options))
    {
    }

    /// Connects to $DISPLAY and shows the window.
    Result<void> open();

    /// Handles what the server has sent; false when it is gone.
    bool handleEvents();

    /// Does what a line of standard input asks for.
    void obey(const QByteArray& command);

private:
    void create();
    void describe(); ///< Sets the properties that tell other programs about it.
    void set(const char* property, xcb_atom_t type, const std::vector<quint32>& values);
    void setText(const char* property, const char* type, const QByteArray& text);

    void handle(const xcb_generic_event_t& event);
    void handleKey(const xcb_key_press_event_t& key);
    void handleFocus(const xcb_focus_in_event_t& focus, const char* direction);
    void applyShape();
    void paint();
    void tellGeometry();
    bool isReady() const; ///< Shown, painted and known to the window manager.
    void grabKeyboard(); ///< As an open menu does.

    ClientOptions m_options;
    xcb_window_t m_window = XCB_NONE;
    quint8 m_depth = 0;
    int m_width = 0, m_height = 0;
    bool m_managed = false;
    bool m_damaged = false; ///< To be painted.
    bool m_painted = false;
    bool m_told = false; ///< That it is on the screen.
    QByteArray m_geometry; ///< The last one told.
};
