// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <QThread>

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <functional>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

namespace KilledProcess {

/// Before the toolkit starts. GLib has a lock of its own that may be held by a thread when this
/// process forks; the child's threads would wait for it for ever.
inline const bool isWithoutGLib = qputenv("QT_NO_GLIB", "1");

/// What a process wrote that was killed some time after it wrote for the first time.
/// @param work never returns; is given the descriptor to write to
inline QByteArray reportOf(const std::function<void(int report)>& work, unsigned long microseconds)
{
    std::array<int, 2> report {};
    EXPECT_EQ(pipe(report.data()), 0);
    const pid_t child = fork();
    if (child == 0) {
        work(report[1]);
        _exit(1);
    }
    close(report[1]);
    pollfd first {report[0], POLLIN, 0};
    EXPECT_EQ(poll(&first, 1, 20'000), 1) << "it does nothing";
    QThread::usleep(microseconds);
    kill(child, SIGKILL);
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status)) << "it ended by itself";
    QFile file;
    EXPECT_TRUE(file.open(report[0], QIODevice::ReadOnly, QFile::AutoCloseHandle));
    return file.readAll();
}

} // namespace KilledProcess
