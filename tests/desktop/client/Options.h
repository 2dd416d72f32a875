// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/desktop/client/Look.h"

#include <string>

/// What desktop-client was asked for on its command line.
struct Options {
    std::string title = "desktop-client";
    std::string instance = "desktop-client";
    std::string className = "DesktopClient";
    std::string type; ///< Such as "DIALOG"; empty: no property.
    int x = 100, y = 100; ///< Top left corner without any frame, native root pixels.
    int width = 400, height = 300; ///< Native pixels.
    Look look;
    bool overrideRedirect = false;
    bool shaped = false;
    bool withPid = true;
    bool own = false; ///< Marked as a window of Pixmallow.
    bool fullscreen = false;
    bool minimized = false;
};

/// Reads the command line; says what is wrong with it and ends the program if it is not understood.
Options readOptions(int count, char** arguments);
