// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/desktop/Client.h"

#include <sys/prctl.h>
#include <unistd.h>

void tieToParent(QProcess& process, Tie tie)
{
    const pid_t parent = ::getpid();
    process.setChildProcessModifier([tie, parent] {
        if (tie.group == Tie::Group::Own)
            ::setpgid(0, 0);
        ::prctl(PR_SET_PDEATHSIG, tie.deathSignal);
        if (::getppid() != parent) // It died before it was watched.
            ::_exit(127);
    });
}

Result<void> startProcess(QProcess& process, const QString& program, const QStringList& arguments)
{
    process.start(program, arguments);
    if (process.waitForStarted(int(patience.count())))
        return {};
    return Error::failed(
        QStringLiteral("%1 could not be started: %2.").arg(program, process.errorString()));
}

void endProcess(QProcess& process)
{
    if (process.state() == QProcess::NotRunning)
        return;
    process.terminate();
    ::kill(pid_t(process.processId()), SIGCONT); // One that is stopped would not hear the first.
    if (process.waitForFinished(2000))
        return;
    process.kill();
    process.waitForFinished(-1);
}

Client::Client(const QProcessEnvironment& environment)
{
    m_process.setProcessEnvironment(environment);
    tieToParent(m_process, {});
}

Client::~Client()
{
    stop();
}

Result<void> Client::start(const QString& program, const QStringList& arguments)
{
    return startProcess(m_process, program, arguments);
}

QByteArray Client::waitForLine(const QByteArray& prefix, std::chrono::milliseconds most)
{
    QByteArray line;
    (void)waitFor(
        [&] {
            const bool over = !isRunning(); // Asked first: then nothing is missed at the end.
            return takeLine(prefix, line) || over;
        },
        most);
    return line;
}

bool Client::takeLine(const QByteArray& prefix, QByteArray& line)
{
    m_output += m_process.readAllStandardOutput();
    qsizetype start = 0;
    for (qsizetype end = 0; (end = m_output.indexOf('\n', start)) >= 0; start = end + 1) {
        if (m_output.sliced(start).startsWith(prefix)) {
            line = m_output.sliced(start, end - start);
            m_output.remove(start, end + 1 - start);
            return true;
        }
    }
    return false;
}

void Client::send(const QByteArray& line)
{
    m_process.write(line + '\n');
    m_process.waitForBytesWritten(int(patience.count()));
}

bool Client::waitForEnd(std::chrono::milliseconds most)
{
    return waitFor([this] { return !isRunning(); }, most);
}

int Client::exitCode() const
{
    const int code = m_process.exitCode();
    return m_process.exitStatus() == QProcess::CrashExit ? 128 + code : code;
}

void Client::kill()
{
    m_process.kill();
    m_process.waitForFinished(-1);
}

QByteArray Client::output()
{
    return m_output += m_process.readAllStandardOutput();
}

QByteArray Client::errors()
{
    return m_errors += m_process.readAllStandardError();
}
