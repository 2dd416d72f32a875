// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/desktop/VirtualDesktop.h"
#include "tests/desktop/client/Look.h"

/// A window of desktop-client that is on the screen.
struct ClientWindow {
    std::unique_ptr<Client> client;
    xcb_window_t id = XCB_NONE;
    QRect geometry; ///< Native pixels of the root window, without any frame.
};

/// Starts desktop-client and waits until its window is on the screen, painted and managed. Its
/// options are in its --help. Reports a failure of the test and returns no client if it does not
/// get there.
ClientWindow openWindow(const VirtualDesktop& desktop, const QStringList& arguments = {});

/// Takes the newest geometry that the client tells of after this call or has told of before.
QRect waitForGeometry(Client& client);
