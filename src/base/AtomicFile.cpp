// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/AtomicFile.h"

#include "base/Words.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdio>
#include <system_error>
#include <tuple>

namespace {

constexpr char hiddenPrefix[] = ".pixmallow-";
constexpr char hiddenSuffix[] = ".part";

/// Repeats a system call that a signal interrupted.
template <typename Call>
auto retried(Call call)
{
    auto result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}

QByteArray folderOf(const QByteArray& path)
{
    const auto slash = path.lastIndexOf('/');
    return slash < 0 ? QByteArray(".") : path.left(slash + 1);
}

QByteArray hiddenNameBeside(const QByteArray& target)
{
    // Not derived from the target's name, which may already have the longest length allowed.
    return folderOf(target) + '/' + hiddenPrefix
        + QByteArray::number(QRandomGenerator::system()->generate64(), 36) + hiddenSuffix;
}

/// The descriptor that a path such as /dev/stdout stands for, or -1. Opened by its path it would
/// forget its position, and a socket could not be opened at all.
int inheritedDescriptor(const QByteArray& path)
{
    for (const char* folder : {"/proc/self/fd/", "/dev/fd/"}) {
        bool isNumber = false;
        const int number = path.mid(qsizetype(qstrlen(folder))).toInt(&isNumber);
        if (path.startsWith(folder) && isNumber)
            return number;
    }
    return -1;
}

/// Where the links that a path names end, whether something is there or not; stops at a descriptor.
QByteArray behindLinks(QByteArray path)
{
    constexpr int mostLinks = 40; // As many as the kernel follows; opening a circle fails later.
    for (int i = 0; i < mostLinks && inheritedDescriptor(path) < 0; ++i) {
        QByteArray link(PATH_MAX, Qt::Uninitialized);
        const auto length = readlink(path.constData(), link.data(), std::size_t(link.size()));
        if (length < 0)
            break;
        link.truncate(length);
        path = link.startsWith('/') ? link : folderOf(path) + '/' + link;
    }
    return path;
}

/// Names a file that has none; never replaces.
bool linkDescriptor(int descriptor, const QByteArray& name)
{
    const QByteArray open = "/proc/self/fd/" + QByteArray::number(descriptor);
    return linkat(AT_FDCWD, open.constData(), AT_FDCWD, name.constData(), AT_SYMLINK_FOLLOW) == 0;
}

/// For file systems with neither such a rename nor links: claims the name with an empty file of our
/// own, then replaces that.
bool renameOverClaim(const char* from, const char* to)
{
    const int claim = open(to, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (claim < 0)
        return false;
    close(claim);
    if (rename(from, to) == 0)
        return true;
    const int reason = errno;
    unlink(to);
    errno = reason;
    return false;
}

bool renameWithoutReplacing(const char* from, const char* to)
{
    if (renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE) == 0)
        return true;
    if (errno != EINVAL && errno != ENOSYS && errno != EOPNOTSUPP)
        return false;
    if (link(from, to) == 0) {
        unlink(from);
        return true;
    }
    return errno != EEXIST && renameOverClaim(from, to);
}

QString reasonText(int reason, const QString& path)
{
    const QString folder = QFileInfo(path).absolutePath();
    if (reason == EEXIST)
        return Words::tr("a file of that name exists already");
    if (reason == EISDIR)
        return Words::tr("it is a folder");
    if (reason == ENOENT && !QFileInfo::exists(folder))
        return Words::tr("the folder “%1” does not exist").arg(folder);
    return QString::fromLocal8Bit(std::generic_category().message(reason).c_str());
}

} // namespace

AtomicFile::AtomicFile(QString path, Options options)
    : m_path(std::move(path))
    , m_options(options)
{
}

AtomicFile::~AtomicFile()
{
    if (!m_temporary.isEmpty())
        unlink(m_temporary.constData());
    if (m_descriptor >= 0)
        close(m_descriptor);
}

Result<void> AtomicFile::open()
{
    const QByteArray path = QFile::encodeName(m_path);
    if (path.isEmpty())
        return failed(EINVAL);
    const QByteArray target = behindLinks(path);
    if (const int inherited = inheritedDescriptor(target); inherited >= 0)
        return opened(fcntl(inherited, F_DUPFD_CLOEXEC, 0));

    struct stat present { };
    const bool isPresent = stat(target.constData(), &present) == 0;
    if (!isPresent && errno != ENOENT)
        return failed(errno);
    if (target.endsWith('/') || (isPresent && S_ISDIR(present.st_mode)))
        return failed(EISDIR);
    if (isPresent && !S_ISREG(present.st_mode))
        return opened(retried([&] { return ::open(target.constData(), O_WRONLY | O_CLOEXEC); }));

    const mode_t fresh = m_options.access == Access::OwnerOnly ? 0600 : 0666;
    if (m_options.existing == Existing::Keep) {
        m_target = path; // A link that leads nowhere has the name, too.
        struct stat named { };
        return lstat(path.constData(), &named) == 0 ? failed(EEXIST) : openTemporary(fresh);
    }
    m_target = target;
    if (!isPresent || m_options.access == Access::OwnerOnly)
        return openTemporary(fresh);
    if (access(target.constData(), W_OK) != 0)
        return failed(errno); // Renaming would get past the write protection.
    const auto result = openTemporary(0600);
    if (result) { // Where this is refused, the file at worst stays its owner's alone.
        const bool isOwned = fchown(m_descriptor, present.st_uid, present.st_gid) == 0;
        std::ignore = fchmod(m_descriptor, present.st_mode & (isOwned ? 0777 : 0707));
    }
    return result;
}

Result<void> AtomicFile::openTemporary(mode_t mode)
{
    // A file without a name vanishes with the process, whatever ends it.
    m_descriptor = ::open(folderOf(m_target).constData(), O_TMPFILE | O_WRONLY | O_CLOEXEC, mode);
    if (m_descriptor >= 0 || (errno != EOPNOTSUPP && errno != EISDIR && errno != EINVAL))
        return opened(m_descriptor);
    m_temporary = hiddenNameBeside(m_target);
    return opened(::open(m_temporary.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode));
}

Result<void> AtomicFile::write(std::span<const std::uint8_t> bytes)
{
    while (!m_failure && !bytes.empty()) {
        const auto written
            = retried([&] { return ::write(m_descriptor, bytes.data(), bytes.size()); });
        if (written < 0)
            return failed(errno);
        bytes = bytes.subspan(std::size_t(written));
    }
    return m_failure ? Result<void>(*m_failure) : Result<void>();
}

Result<void> AtomicFile::commit()
{
    if (m_failure)
        return *m_failure;
    if (!m_target.isEmpty() && (fdatasync(m_descriptor) != 0 || !publish()))
        return failed(errno);
    m_temporary.clear();
    return close(std::exchange(m_descriptor, -1)) == 0 ? Result<void>() : failed(errno);
}

bool AtomicFile::publish()
{
    const bool keeps = m_options.existing == Existing::Keep;
    if (m_temporary.isEmpty() && keeps)
        return linkDescriptor(m_descriptor, m_target);
    if (m_temporary.isEmpty()) { // A link never replaces: this takes a name in between.
        const QByteArray name = hiddenNameBeside(m_target);
        if (!linkDescriptor(m_descriptor, name))
            return false;
        m_temporary = name;
    }
    return keeps ? renameWithoutReplacing(m_temporary.constData(), m_target.constData())
                 : rename(m_temporary.constData(), m_target.constData()) == 0;
}

Result<void> AtomicFile::opened(int descriptor)
{
    m_descriptor = descriptor;
    return descriptor < 0 ? failed(errno) : Result<void>();
}

Result<void> AtomicFile::failed(int reason)
{
    m_failure = Error {reason == EEXIST ? Error::Kind::Exists : Error::Kind::Failed,
        Words::tr("Couldn't write “%1”: %2.").arg(m_path, reasonText(reason, m_path))};
    return *m_failure;
}

bool isUnfinishedFile(QStringView name)
{
    return name.startsWith(QLatin1String(hiddenPrefix))
        && name.endsWith(QLatin1String(hiddenSuffix));
}

void removeUnfinishedFiles(const QString& folder)
{
    const QStringList names = QDir(folder).entryList(QDir::Files | QDir::Hidden);
    for (const QString& name : names)
        if (isUnfinishedFile(name))
            QFile::remove(folder + u'/' + name);
}

Result<void> writeFile(const QString& path, const QByteArray& content, AtomicFile::Options options)
{
    AtomicFile file(path, options);
    if (const auto opened = file.open(); !opened)
        return opened;
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(content.constData());
    if (const auto written = file.write({bytes, std::size_t(content.size())}); !written)
        return written;
    return file.commit();
}
