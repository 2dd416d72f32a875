// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/desktop/Janitor.h"

#include "tests/desktop/Waiting.h"

#include <QFile>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr const char* cleanUp = R"sh(
cat > /dev/null
round=0
while left=$(grep -lsxzF "XDG_RUNTIME_DIR=$1/runtime" /proc/[0-9]*/environ | tr -dc '0-9\n')
      [ -n "$left" ] && [ $round -lt 100 ]; do
    if [ $round -lt 30 ]; then kill -TERM $left; else kill -KILL $left; fi
    sleep 0.1
    round=$((round + 1))
done
socket=$(cat "$1/socket")
if [ -n "$socket" ] && ! grep -q "$socket\$" /proc/net/unix; then rm -f "$socket"; fi
rm -rf -- "$1"
)sh";

/// The second of two forks: adopted by init, in its own session, with nothing of ours open.
[[noreturn]] void becomeJanitor(int lifeline, const char* directory)
{
    const int nowhere = ::open("/dev/null", O_RDWR);
    ::dup2(lifeline, 0);
    ::dup2(nowhere, 1);
    ::dup2(nowhere, 2);
    ::close_range(3, ~0u, 0);
    if (::chdir("/") != 0)
        ::_exit(127);
    const char* const path = "PATH=/usr/bin:/bin";
    char* const environment[] = {const_cast<char*>(path), nullptr};
    ::execle("/bin/sh", "sh", "-c", cleanUp, "janitor", directory, nullptr, environment);
    ::_exit(127);
}

} // namespace

Result<void> Janitor::guard(const QString& directory)
{
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0)
        return Error::failed(QStringLiteral("No pipe: %1.").arg(qt_error_string(errno)));
    const QByteArray path = QFile::encodeName(directory);
    const pid_t child = ::fork();
    if (child == 0) {
        ::setsid();
        if (::fork() == 0)
            becomeJanitor(ends[0], path.constData());
        ::_exit(0);
    }
    ::close(ends[0]);
    m_lifeline = ends[1];
    m_directory = directory;
    if (child < 0 || ::waitpid(child, nullptr, 0) != child)
        return Error::failed(QStringLiteral("No new process: %1.").arg(qt_error_string(errno)));
    return {};
}

void Janitor::finish()
{
    if (m_lifeline < 0)
        return;
    ::close(m_lifeline);
    m_lifeline = -1;
    (void)waitFor([this] { return !QFile::exists(m_directory); });
}
