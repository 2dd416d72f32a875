// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"
#include "tests/desktop/Waiting.h"

#include <QByteArray>
#include <QProcess>

#include <csignal>

/// How a child hangs on its parent.
struct Tie {
    enum class Group { Own, OfParent };

    int deathSignal
        = SIGKILL; ///< What the kernel sends it when its parent dies, however that dies.
    Group group = Group::Own; ///< A terminal's Ctrl+C reaches the parent's group only.
};

/// Ties a process that is about to be started to this one. The kernel watches the thread that
/// starts it, so start it from one that lives long enough: the main thread.
void tieToParent(QProcess& process, Tie tie);

/// Starts a program; fails with a sentence that says why.
Result<void> startProcess(QProcess& process, const QString& program, const QStringList& arguments);

/// Asks a process to end, makes it end after two seconds, and returns when it has.
void endProcess(QProcess& process);

/// A program that runs in a virtual desktop and is talked to in lines. Ends with this object, and
/// with this process whatever happens to it.
class Client final {
public:
    explicit Client(const QProcessEnvironment& environment);
    ~Client();

    Result<void> start(const QString& program, const QStringList& arguments);

    qint64 pid() const { return m_process.processId(); }
    bool isRunning() const { return m_process.state() != QProcess::NotRunning; }

    /// Waits for a line of standard output that begins with the prefix, takes it out and returns it
    /// without its end; lines before it stay for later calls. Null when it did not come in time or
    /// the program ended without it.
    [[nodiscard]] QByteArray waitForLine(
        const QByteArray& prefix, std::chrono::milliseconds most = patience);

    /// Gives the program one line on standard input.
    void send(const QByteArray& line);

    [[nodiscard]] bool waitForEnd(std::chrono::milliseconds most = patience);
    int exitCode() const; ///< After the end; 128 + the signal if one ended it.

    void stop() { endProcess(m_process); } ///< Returns when it has ended.
    void kill(); ///< SIGKILL; returns when it has ended.

    QByteArray output(); ///< Standard output so far, without the lines taken.
    QByteArray errors(); ///< Standard error so far.

private:
    bool takeLine(const QByteArray& prefix, QByteArray& line);

    QProcess m_process;
    QByteArray m_output;
    QByteArray m_errors;
};
