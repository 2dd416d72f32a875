// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"

#include <QImage>
#include <QPoint>

#include <chrono>
#include <memory>
#include <vector>
#include <xcb/xcb.h>

/// An X display seen and driven from outside, over a connection of its own: what a person does with
/// keys and pointer, and what that person sees. All coordinates are native pixels of the root
/// window. Every call returns when the server has done it; clients may still be about to react.
class XDisplay {
public:
    virtual ~XDisplay() = default;

    QString display() const { return m_name; } ///< Such as ":1".
    xcb_connection_t* connection() const { return m_connection.get(); }
    const xcb_screen_t& screen() const { return *m_screen; }

    // Keys. Names are X keysym names, or ctrl, shift, alt, altgr and super. An unknown name, or a
    // key that the present layout lacks, throws std::invalid_argument.

    /// Presses and releases a chord such as "ctrl+shift+1", "Escape" or "F5". A last key that the
    /// layout has on its shifted level gets shift as well.
    void key(const QByteArray& chord);
    void typeKeys(const QByteArray& text); ///< Latin-1 text; "\n" is Return, "\t" is Tab.
    void pressKey(const QByteArray& name) { pressKeyCode(codeOf(name)); }
    void releaseKey(const QByteArray& name) { releaseKeyCode(codeOf(name)); }
    void pressKeyCode(xcb_keycode_t code) { send(XCB_KEY_PRESS, code); } ///< Of any layout.
    void releaseKeyCode(xcb_keycode_t code) { send(XCB_KEY_RELEASE, code); }

    // The pointer. Buttons: 1 left, 2 middle, 3 right, 4 and 5 the wheel up and down.
    void moveTo(QPoint position) { send(XCB_MOTION_NOTIFY, 0, position); }
    void press(int button = 1) { send(XCB_BUTTON_PRESS, button); }
    void release(int button = 1) { send(XCB_BUTTON_RELEASE, button); }
    void click(int button = 1) { press(button), release(button); }
    void clickAt(QPoint position, int button = 1) { moveTo(position), click(button); }

    /// Button 1 from here to there in several steps, with a pause after each for programs that
    /// need time between them, as drag and drop does.
    void drag(QPoint from, QPoint to, std::chrono::milliseconds pause = {});
    QPoint pointer() const;

    /// What the screen shows, read by plain GetImage, as RGB32. Null if the rectangle is not all
    /// within the root window. No rectangle: everything.
    QImage rootPixels(QRect rectangle = {}) const;

    /// Waits until one pixel has this colour; false if it does not within `patience`.
    [[nodiscard]] bool waitForPixel(QPoint position, QRgb colour) const;

    /// Shows a picture behind all windows as desktops do, from the top left corner on, black around
    /// it: background pixmap, _XROOTPMAP_ID and ESETROOT_PMAP_ID.
    void setRootPicture(const QImage& picture);

    xcb_atom_t atom(const QByteArray& name) const;

    /// Whether a selection such as _NET_WM_CM_S0 has an owner.
    bool isOwned(const QByteArray& selection) const;

    /// The values of a window's property of 32-bit items; none if it has none.
    std::vector<quint32> property(xcb_window_t window, const QByteArray& name) const;

protected:
    XDisplay() = default;
    Result<void> connect(const QString& name);
    void disconnect() { m_connection.reset(); }

    /// Paints a picture of 32 bits a pixel into a window or pixmap, from its top left corner on.
    void put(xcb_drawable_t where, quint8 depth, const QImage& image) const;

private:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };

    xcb_keycode_t codeOf(const QByteArray& key) const;
    void send(int event, int detail, QPoint position = {});
    void sync() const;

    QString m_name;
    std::unique_ptr<xcb_connection_t, Disconnect> m_connection;
    const xcb_screen_t* m_screen = nullptr;
    xcb_pixmap_t m_picture = XCB_NONE;
};
