// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/x11/OwnWindowMarker.h"

#include "platform/x11/OwnWindowProperty.h"
#include "platform/x11/X11Connection.h"

#include <QGuiApplication>
#include <QPlatformSurfaceEvent>
#include <QWindow>
#include <QtGui/qguiapplication_platform.h>

namespace {

/// Over the toolkit's own connection, on which the window exists already.
void mark(xcb_window_t window)
{
    const auto* native = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!native)
        return;
    xcb_connection_t* xcb = native->connection();
    const auto cookie = xcb_intern_atom(xcb, 0, sizeof ownWindowProperty - 1, ownWindowProperty);
    const auto atom = owned(xcb_intern_atom_reply(xcb, cookie, nullptr));
    const std::uint32_t yes = 1;
    if (atom)
        xcb_change_property(
            xcb, XCB_PROP_MODE_REPLACE, window, atom->atom, XCB_ATOM_CARDINAL, 32, 1, &yes);
}

} // namespace

OwnWindowMarker::OwnWindowMarker()
{
    qGuiApp->installEventFilter(this);
}

bool OwnWindowMarker::eventFilter(QObject* object, QEvent* event)
{
    const auto* window = qobject_cast<QWindow*>(object);
    if (window && event->type() == QEvent::PlatformSurface
        && static_cast<QPlatformSurfaceEvent*>(event)->surfaceEventType()
            == QPlatformSurfaceEvent::SurfaceCreated)
        mark(xcb_window_t(window->winId()));
    return false;
}
