// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/LocalSocket.h"

#include "base/Words.h"

#include <QFile>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

#include <cerrno>
#include <cstring>

namespace {

Error refuse(const QString& path, const QString& reason)
{
    return Error::failed(Words::tr("Couldn't use the socket “%1”: %2.").arg(path, reason));
}

Result<sockaddr_un> addressOf(const QString& path)
{
    sockaddr_un address {};
    address.sun_family = AF_UNIX;
    const QByteArray name = QFile::encodeName(path);
    constexpr auto longest = qsizetype(sizeof address.sun_path) - 1;
    if (name.size() > longest)
        return refuse(path,
            Words::tr(
                "its path has %1 bytes and the system allows %2; a shorter XDG_RUNTIME_DIR helps")
                .arg(name.size())
                .arg(longest));
    std::memcpy(address.sun_path, name.constData(), std::size_t(name.size()));
    return address;
}

void setTimeout(const Descriptor& socket, int option, std::chrono::milliseconds most)
{
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(most);
    const std::chrono::microseconds rest = most - seconds;
    const timeval time {.tv_sec = seconds.count(), .tv_usec = rest.count()};
    setsockopt(socket.number(), SOL_SOCKET, option, &time, sizeof time);
}

} // namespace

Result<Descriptor> LocalSocket::listen(const QString& path)
{
    const auto address = addressOf(path);
    if (!address)
        return address.error();
    Descriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
    if (!socket)
        return refuse(path, systemMessage(errno));
    unlink(address->sun_path);
    const auto* name = reinterpret_cast<const sockaddr*>(&*address);
    if (bind(socket.number(), name, sizeof *address) != 0
        || chmod(address->sun_path, 0600) != 0 // In time: nobody can connect before it listens.
        || ::listen(socket.number(), SOMAXCONN) != 0)
        return refuse(path, systemMessage(errno));
    return socket;
}

Result<std::optional<Descriptor>> LocalSocket::connect(
    const QString& path, std::chrono::milliseconds mostPerStep)
{
    const auto address = addressOf(path);
    if (!address)
        return address.error();
    Descriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    if (!socket)
        return refuse(path, systemMessage(errno));
    setTimeout(socket, SO_SNDTIMEO, mostPerStep); // Connecting counts as sending.
    setTimeout(socket, SO_RCVTIMEO, mostPerStep);
    const auto* name = reinterpret_cast<const sockaddr*>(&*address);
    if (::connect(socket.number(), name, sizeof *address) != 0) {
        if (errno == ENOENT || errno == ECONNREFUSED)
            return std::optional<Descriptor>();
        return refuse(path, systemMessage(errno));
    }
    if (!isSameUser(socket))
        return refuse(path, Words::tr("it belongs to another user"));
    return std::optional(std::move(socket));
}

bool LocalSocket::isSameUser(const Descriptor& connection)
{
    ucred peer {};
    socklen_t size = sizeof peer;
    return getsockopt(connection.number(), SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0
        && peer.uid == geteuid();
}

void LocalSocket::setReceiveTimeout(const Descriptor& connection, std::chrono::milliseconds most)
{
    setTimeout(connection, SO_RCVTIMEO, most);
}
