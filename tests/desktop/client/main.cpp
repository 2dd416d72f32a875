// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/desktop/client/Window.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <poll.h>
#include <sys/prctl.h>
#include <unistd.h>

namespace {

/// Splits what was read into lines and gives them to the window; false when it is to close.
bool obeyInput(Window& window, std::string& pending)
{
    char bytes[4096];
    const ssize_t count = ::read(STDIN_FILENO, bytes, sizeof bytes);
    pending.append(bytes, std::size_t(std::max<ssize_t>(count, 0)));
    for (std::size_t end = 0; (end = pending.find('\n')) != std::string::npos;) {
        const std::string line = pending.substr(0, end);
        pending.erase(0, end + 1);
        if (!window.obey(line))
            return false;
    }
    return true;
}

} // namespace

int main(int count, char** arguments)
{
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    const Options options = readOptions(count, arguments);
    xcb_connection_t* const connection = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(connection)) {
        std::fprintf(stderr, "desktop-client: no connection to the display\n");
        return 1;
    }
    Window window(connection, options);
    std::string pending;
    pollfd sources[]
        = {{xcb_get_file_descriptor(connection), POLLIN, 0}, {STDIN_FILENO, POLLIN, 0}};
    bool open = true;
    while (open) {
        open = window.handleEvents();
        if (!open || ::poll(sources, 2, -1) < 0)
            break;
        if (sources[1].revents & POLLIN)
            open = obeyInput(window, pending);
        else if (sources[1].revents)
            sources[1].fd = -1; // Nobody commands any more.
    }
    xcb_disconnect(connection);
    return 0;
}
