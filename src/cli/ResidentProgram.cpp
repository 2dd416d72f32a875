// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "cli/ResidentProgram.h"

#include "base/Words.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QThread>

#include <fcntl.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <cerrno>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::seconds longestStart(10);

Result<QByteArray> findProgram()
{
    const QString name = u"pixmallow-desktop"_s;
    QString path = QStandardPaths::findExecutable(name, {QCoreApplication::applicationDirPath()});
    if (path.isEmpty())
        path = QStandardPaths::findExecutable(name);
    if (path.isEmpty())
        return Error::failed(
            Words::tr("The program '%1' is neither beside this one nor in PATH.").arg(name));
    return QFile::encodeName(path);
}

Error cannotStart(const QByteArray& program, const QString& reason)
{
    return Error::failed(
        Words::tr("Couldn't start '%1': %2.").arg(QFile::decodeName(program), reason));
}

/// The end of argv that the system's calls expect; the words must outlive it.
std::vector<char*> pointersTo(QList<QByteArray>& words)
{
    std::vector<char*> pointers;
    for (auto& word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    return pointers;
}

/// Whether standard error goes to the system's journal, as for programs that a desktop starts.
bool complainsToJournal()
{
    struct stat errors { };
    return fstat(STDERR_FILENO, &errors) == 0
        && qgetenv("JOURNAL_STREAM")
        == QByteArray::number(qulonglong(errors.st_dev)) + ':'
            + QByteArray::number(qulonglong(errors.st_ino));
}

/// Starts it in a session of its own, so that neither Ctrl+C nor the end of the terminal reaches
/// it. It keeps standard error only if that is the journal: a pipe or terminal kept open for days
/// would hang whoever waits for its end.
Result<pid_t> startInBackground(const QByteArray& program)
{
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    if (!complainsToJournal())
        posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addclosefrom_np(&actions, STDERR_FILENO + 1);
    const QByteArray home = QFile::encodeName(QDir::homePath());
    posix_spawn_file_actions_addchdir_np(&actions, QDir::home().exists() ? home.constData() : "/");
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID);

    QList<QByteArray> words {program, "--background"};
    pid_t child = 0;
    const int error = posix_spawn(
        &child, program.constData(), &actions, &attributes, pointersTo(words).data(), environ);
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    return error ? Result<pid_t>(cannotStart(program, systemMessage(error))) : child;
}

/// How a child that has ended failed; empty while it runs, and if it ended well, as one does that
/// finds another one resident.
QString failureOf(pid_t child)
{
    int status = 0;
    if (waitpid(child, &status, WNOHANG) != child || status == 0)
        return {};
    return WIFEXITED(status)
        ? Words::tr("it ended at once with exit code %1; 'pixmallow' in a terminal may tell why")
              .arg(WEXITSTATUS(status))
        : Words::tr("it ended at once by signal %1; 'pixmallow' in a terminal may tell why")
              .arg(WTERMSIG(status));
}

} // namespace

Error ResidentProgram::become(const QStringList& options)
{
    const auto program = findProgram();
    if (!program)
        return program.error();
    QList<QByteArray> words {*program};
    for (const auto& option : options)
        words.push_back(option.toLocal8Bit());
    execv(program->constData(), pointersTo(words).data());
    return cannotStart(*program, systemMessage(errno));
}

Result<ControlClient> ResidentProgram::reach(const Folders& folders)
{
    std::optional<pid_t> child;
    QByteArray program;
    for (const QDeadlineTimer deadline(longestStart); !deadline.hasExpired(); QThread::msleep(10)) {
        auto client = ControlClient::connect(folders);
        if (!client)
            return client.error();
        if (*client)
            return **std::move(client);
        if (!child) {
            const auto found = findProgram();
            if (!found)
                return found.error();
            const auto started = startInBackground(program = *found);
            if (!started)
                return started.error();
            child = *started;
        } else if (const auto failure = failureOf(*child); !failure.isEmpty()) {
            return cannotStart(program, failure);
        }
    }
    return cannotStart(
        program, Words::tr("it could not be asked within %1 seconds").arg(longestStart.count()));
}
