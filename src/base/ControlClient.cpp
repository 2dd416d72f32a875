// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/ControlClient.h"

#include "base/LocalSocket.h"
#include "base/Words.h"

#include <QDeadlineTimer>

#include <sys/socket.h>

#include <algorithm>
#include <array>
#include <cerrno>

namespace {

constexpr std::chrono::seconds patience(10);

bool sendAll(const Descriptor& socket, QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const auto sent
            = send(socket.number(), bytes.data(), std::size_t(bytes.size()), MSG_NOSIGNAL);
        if (sent < 0 && errno != EINTR)
            return false;
        bytes = bytes.sliced(std::max<ssize_t>(sent, 0));
    }
    return true;
}

using Chunk = std::array<char, 4096>;

/// As recv(), which may be interrupted by a signal.
ssize_t receive(const Descriptor& socket, Chunk& chunk)
{
    ssize_t count = 0;
    do
        count = recv(socket.number(), chunk.data(), chunk.size(), 0);
    while (count < 0 && errno == EINTR);
    return count;
}

} // namespace

Result<std::optional<ControlClient>> ControlClient::connect(const Folders& folders)
{
    auto socket = LocalSocket::connect(Control::socketPath(folders), patience);
    if (!socket)
        return socket.error();
    if (!*socket)
        return std::optional<ControlClient>();
    return std::optional(ControlClient(**std::move(socket)));
}

Result<Control::Answer> ControlClient::ask(const Control::Request& request)
{
    const auto* capture = std::get_if<Control::Capture>(&request);
    LocalSocket::setReceiveTimeout(
        m_socket, capture && capture->wait ? std::chrono::seconds(0) : patience);
    // A program that is ending may refuse the request but have answered it, so it is read anyway.
    sendAll(m_socket, Control::toLine(request));
    const auto line = receiveLine();
    if (!line)
        return line.error();
    auto answer = Control::answerFrom(*line);
    if (!answer)
        return Error::failed(
            Words::tr("Pixmallow's answer was not understood. %1").arg(answer.error().message));
    return answer;
}

Result<QByteArray> ControlClient::receiveLine()
{
    QByteArray line;
    Chunk chunk;
    while (line.size() <= Control::longestAnswer) {
        const auto count = receive(m_socket, chunk);
        if (count < 0 && errno == EAGAIN)
            return Error::failed(Words::tr("Pixmallow runs but gave no answer within %1 seconds.")
                                     .arg(patience.count()));
        if (count <= 0)
            return Error::failed(Words::tr("Pixmallow ended before it answered."));
        const auto searched = line.size();
        line.append(chunk.data(), count);
        if (const auto end = line.indexOf('\n', searched); end >= 0)
            return line.first(end);
    }
    return Error::failed(Words::tr("Pixmallow's answer does not end."));
}

Result<void> ControlClient::waitForEnd(std::chrono::milliseconds most)
{
    // It keeps the connection of whoever made it quit to the last.
    const QDeadlineTimer deadline(most);
    Chunk chunk;
    for (auto left = most; left.count() > 0;
         left = std::chrono::milliseconds(deadline.remainingTime())) {
        LocalSocket::setReceiveTimeout(m_socket, left);
        const auto count = receive(m_socket, chunk);
        if (count == 0 || (count < 0 && errno != EAGAIN))
            return {};
    }
    return Error::failed(
        Words::tr("Pixmallow has not ended within %1 seconds.").arg(double(most.count()) / 1000));
}

Result<void> askResidentToQuitAndWait(const Folders& folders, std::chrono::milliseconds most)
{
    auto client = ControlClient::connect(folders);
    if (!client)
        return client.error();
    if (!*client)
        return {};
    const auto answer = (*client)->ask(Control::Quit {});
    if (!answer) { // It may have been ending already.
        const auto again = ControlClient::connect(folders);
        return again && !*again ? Result<void>() : answer.error();
    }
    if (const auto* report = std::get_if<CaptureReport>(&*answer))
        return Error::failed(report->reason);
    return (*client)->waitForEnd(most);
}
