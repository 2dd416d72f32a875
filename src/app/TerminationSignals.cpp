// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "app/TerminationSignals.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>

namespace {

constexpr std::array handledSignals {SIGTERM, SIGINT, SIGHUP};

int s_writeEnd = -1; // All that the handler may touch.

/// Writing to a pipe is among the few things allowed in here.
void handle(int)
{
    const int saved = errno;
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = write(s_writeEnd, &byte, 1);
    errno = saved;
}

int openPipe()
{
    std::array<int, 2> ends {-1, -1};
    if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) == 0)
        s_writeEnd = ends[1];
    return ends[0];
}

void setHandler(void (*handler)(int))
{
    struct sigaction action { };
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (const int signal : handledSignals)
        sigaction(signal, &action, nullptr);
}

} // namespace

TerminationSignals::TerminationSignals()
    : m_readEnd(openPipe())
    , m_notifier(m_readEnd, QSocketNotifier::Read)
{
    connect(&m_notifier, &QSocketNotifier::activated, this, [this] {
        char byte = 0;
        while (read(m_readEnd, &byte, 1) == 1) { }
        Q_EMIT received();
    });
    setHandler(handle);
}

TerminationSignals::~TerminationSignals()
{
    setHandler(SIG_DFL);
    m_notifier.setEnabled(false);
    close(s_writeEnd);
    close(m_readEnd);
}
