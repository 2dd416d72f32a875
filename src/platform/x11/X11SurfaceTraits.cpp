// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/x11/X11SurfaceTraits.h"

#include "base/Words.h"
#include "platform/x11/X11Connection.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QScreen>
#include <QtGui/qguiapplication_platform.h>

#include <cmath>
#include <vector>
#include <xcb/shape.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto grabRetry = 5ms;

QScreen* screenOf(const DisplayInfo& display)
{
    for (QScreen* screen : QGuiApplication::screens())
        if (screen->name() == display.name)
            return screen;
    QScreen* const there = QGuiApplication::screenAt(display.native.topLeft());
    return there ? there : QGuiApplication::primaryScreen();
}

xcb_window_t focusOf(xcb_connection_t* xcb)
{
    const auto focus = owned(xcb_get_input_focus_reply(xcb, xcb_get_input_focus(xcb), nullptr));
    return focus ? focus->focus : xcb_window_t(XCB_WINDOW_NONE);
}

bool isOurs(xcb_connection_t* xcb, xcb_window_t window)
{
    const auto* const setup = xcb_get_setup(xcb);
    return (window & ~setup->resource_id_mask) == setup->resource_id_base;
}

/// One of ours that floats; others of ours are like those of any program.
bool isFloating(xcb_connection_t* xcb, xcb_window_t window)
{
    if (!isOurs(xcb, window))
        return false;
    const auto attributes = owned(
        xcb_get_window_attributes_reply(xcb, xcb_get_window_attributes(xcb, window), nullptr));
    return attributes && attributes->override_redirect;
}

/// The first two windows that can have the focus stand for none and for the root.
constexpr xcb_window_t lastSpecialFocus = XCB_INPUT_FOCUS_POINTER_ROOT;

} // namespace

Result<std::unique_ptr<SurfaceTraits>> X11SurfaceTraits::make()
{
    const auto* const native = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!native)
        return Error::failed(Words::tr("The windows of this program are not on an X server."));
    return std::unique_ptr<SurfaceTraits>(new X11SurfaceTraits(native->connection()));
}

X11SurfaceTraits::X11SurfaceTraits(xcb_connection_t* xcb)
    : m_xcb(xcb)
    , m_compositor(xcb, [this] { Q_EMIT blendingChanged(); })
    , m_trail(xcb)
{
    m_retry.setInterval(grabRetry);
    m_retry.callOnTimeout([this] { tryToGrab(); });
}

void X11SurfaceTraits::makeFloating(QWindow& window)
{
    // Window managers put what they manage below a full-screen window, and activate it when
    // clicked.
    window.setFlags(window.flags() | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint
        | Qt::X11BypassWindowManagerHint | Qt::NoDropShadowWindowHint);
}

void X11SurfaceTraits::setInputRegion(QWindow& window, const QRegion& region)
{
    const double scale = window.devicePixelRatio();
    std::vector<xcb_rectangle_t> parts;
    for (const QRect& rect : region) {
        const QRect pixels
            = QRectF(QPointF(rect.topLeft()) * scale, QSizeF(rect.size()) * scale).toAlignedRect();
        parts.push_back({std::int16_t(pixels.x()), std::int16_t(pixels.y()),
            std::uint16_t(pixels.width()), std::uint16_t(pixels.height())});
    }
    xcb_shape_rectangles(m_xcb, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_INPUT, XCB_CLIP_ORDERING_UNSORTED,
        xcb_window_t(window.winId()), 0, 0, std::uint32_t(parts.size()), parts.data());
    xcb_flush(m_xcb);
}

void X11SurfaceTraits::takeFocus(QWindow& window)
{
    if (const xcb_window_t focus = focusOf(m_xcb); !isFloating(m_xcb, focus))
        m_focusBefore = focus;
    xcb_set_input_focus(
        m_xcb, XCB_INPUT_FOCUS_POINTER_ROOT, xcb_window_t(window.winId()), XCB_CURRENT_TIME);
    xcb_flush(m_xcb);
}

void X11SurfaceTraits::returnFocus()
{
    const xcb_window_t before = std::exchange(m_focusBefore, XCB_WINDOW_NONE);
    const xcb_window_t now = focusOf(m_xcb);
    // When a window that has the focus goes, nobody has it.
    const bool taken = now > lastSpecialFocus && !isFloating(m_xcb, now);
    if (before <= lastSpecialFocus || taken)
        return;
    // Should it be gone by now, nothing happens.
    xcb_set_input_focus(m_xcb, XCB_INPUT_FOCUS_PARENT, before, XCB_CURRENT_TIME);
    xcb_flush(m_xcb);
}

void X11SurfaceTraits::makeOverlay(QWindow& window, const DisplayInfo& display)
{
    // No window manager in between: it would move, animate, or leave the window below a full-screen
    // one, and the active window would change.
    window.setFlags(window.flags() | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint
        | Qt::X11BypassWindowManagerHint);
    window.setScreen(screenOf(display));
    const QSize native = display.native.size();
    const auto points = [&display](int pixels) { return int(std::ceil(pixels / display.scale)); };
    const QSize size(points(native.width()), points(native.height()));
    window.setGeometry({display.native.topLeft(), size});
    window.create();
    if (QSizeF(size) * display.scale == QSizeF(native))
        return;
    // The toolkit knows whole points only: a part of the last one is off the screen, where there
    // may be another one.
    const xcb_rectangle_t part {
        0, 0, std::uint16_t(native.width()), std::uint16_t(native.height())};
    xcb_shape_rectangles(m_xcb, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING, XCB_CLIP_ORDERING_UNSORTED,
        xcb_window_t(window.winId()), 0, 0, 1, &part);
}

void X11SurfaceTraits::fill(QWindow& window, const QColor& colour)
{
    const std::uint32_t pixel = colour.rgb();
    xcb_change_window_attributes(m_xcb, xcb_window_t(window.winId()), XCB_CW_BACK_PIXEL, &pixel);
}

void X11SurfaceTraits::grabKeyboard(QWindow& window)
{
    m_keyboardTarget = &window;
    m_retry.start();
    tryToGrab();
}

void X11SurfaceTraits::releaseKeyboard()
{
    m_retry.stop();
    if (!m_keyboardTarget)
        return;
    m_keyboardTarget.clear();
    xcb_ungrab_keyboard(m_xcb, XCB_CURRENT_TIME);
    xcb_flush(m_xcb);
}

QPoint X11SurfaceTraits::nativePosition(const QMouseEvent& event, const QWindow& window) const
{
    // The position in the window, as the global one may be counted by the scale of another screen.
    // The corner of a screen is the same in points and in pixels.
    const QPointF rounded
        = QPointF(window.position()) + event.position() * window.devicePixelRatio();
    return m_trail.find(event, rounded).value_or(rounded.toPoint());
}

void X11SurfaceTraits::movePointer(QPoint native)
{
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(m_xcb)).data->root;
    xcb_warp_pointer(m_xcb, XCB_WINDOW_NONE, root, 0, 0, 0, 0, std::int16_t(native.x()),
        std::int16_t(native.y()));
    (void)owned(xcb_query_pointer_reply(m_xcb, xcb_query_pointer(m_xcb, root), nullptr));
}

void X11SurfaceTraits::tryToGrab()
{
    if (!m_keyboardTarget) {
        m_retry.stop();
        return;
    }
    const auto reply = owned(xcb_grab_keyboard_reply(m_xcb,
        xcb_grab_keyboard(m_xcb, 0, xcb_window_t(m_keyboardTarget->winId()), XCB_CURRENT_TIME,
            XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC),
        nullptr));
    if (reply && reply->status == XCB_GRAB_STATUS_SUCCESS)
        m_retry.stop();
}
