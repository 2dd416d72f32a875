// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/desktop/VirtualDesktop.h"

/// Starts a virtual desktop that shows just this picture.
inline Result<std::unique_ptr<VirtualDesktop>> desktopOf(
    const QImage& picture, DesktopOptions options = {.windowManager = false})
{
    options.size = picture.size();
    auto desktop = VirtualDesktop::start(options);
    if (desktop)
        (*desktop)->setRootPicture(picture);
    return desktop;
}
