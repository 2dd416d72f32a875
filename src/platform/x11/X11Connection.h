// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"
#include "platform/x11/Reply.h"

#include <QByteArray>
#include <QHash>
#include <QRect>

#include <xcb/xcb.h>

#include <memory>
#include <vector>

/// Our own connection to the X server, apart from the toolkit's, so that the front program needs no
/// toolkit. A server that goes away shows as null replies; failure() then tells why.
class X11Connection final {
public:
    /// Connects to $DISPLAY.
    static Result<std::shared_ptr<X11Connection>> open();
    ~X11Connection();
    X11Connection(const X11Connection&) = delete;
    X11Connection& operator=(const X11Connection&) = delete;

    xcb_connection_t* xcb() const { return m_xcb; }
    const xcb_screen_t& screen() const { return *m_screen; }
    xcb_window_t root() const { return m_screen->root; }
    QSize rootSize() const; ///< Device pixels, as it is now: screens may have been added.

    xcb_atom_t atom(const char* name);

    /// The value of a property as 32-bit words; empty when absent.
    std::vector<std::uint32_t> words(xcb_get_property_cookie_t cookie) const;
    QByteArray text(xcb_get_property_cookie_t cookie) const;
    xcb_get_property_cookie_t property(xcb_window_t window, const char* name);

    /// Whether a compositing manager draws the screen.
    bool isComposited();

    /// What went wrong: a lost connection, else the given sentence.
    Error failure(const QString& otherwise) const;

    /// Throws away events and errors nobody waits for; they would pile up.
    void discardEvents() const;

private:
    X11Connection(xcb_connection_t* xcb, int screen);

    xcb_connection_t* m_xcb;
    xcb_screen_t* m_screen = nullptr;
    int m_screenNumber = 0;
    QHash<QByteArray, xcb_atom_t> m_atoms;
};
