// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/Platform.h"

#include "platform/x11/X11Connection.h"
#include "platform/x11/X11Displays.h"
#include "platform/x11/X11ScreenCapture.h"

Result<CapturePlatform> makeCapturePlatform(Residency residency)
{
    auto connection = X11Connection::open();
    if (!connection)
        return connection.error();
    CapturePlatform platform;
    platform.displays = std::make_unique<X11Displays>(*connection);
    platform.capture = std::make_unique<X11ScreenCapture>(*connection, residency);
    return platform;
}
