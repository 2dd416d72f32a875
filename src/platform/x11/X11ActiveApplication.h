// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ActiveApplication.h"
#include "platform/x11/X11Windows.h"

#include <QSocketNotifier>

/// Follows _NET_ACTIVE_WINDOW of the root window, over a connection that nobody else listens on.
class X11ActiveApplication final : public ActiveApplication {
public:
    explicit X11ActiveApplication(std::shared_ptr<X11Connection> connection);

    std::optional<Application> current() override;
    bool isFullScreen() override;

private:
    xcb_window_t front();
    void readEvents();

    std::shared_ptr<X11Connection> m_connection;
    X11Windows m_windows;
    QSocketNotifier m_notifier;
};
