// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "app/ControlConnection.h"

#include <sys/socket.h>

#include <array>
#include <cerrno>

ControlConnection::ControlConnection(
    Descriptor socket, std::chrono::milliseconds patience, Handler handler, QObject* parent)
    : QObject(parent)
    , m_socket(std::move(socket))
    , m_readable(m_socket.number(), QSocketNotifier::Read)
    , m_writable(m_socket.number(), QSocketNotifier::Write)
    , m_handler(std::move(handler))
{
    m_writable.setEnabled(false);
    m_deadline.setSingleShot(true);
    m_deadline.setInterval(patience);
    connect(&m_readable, &QSocketNotifier::activated, this, [this] { receive(); });
    connect(&m_writable, &QSocketNotifier::activated, this, [this] { send(); });
    connect(&m_deadline, &QTimer::timeout, this, [this] { hangUp(); });
    m_deadline.start();
}

void ControlConnection::receive()
{
    // One piece each time the event loop comes round, so that no client keeps it busy.
    std::array<char, 4096> piece;
    const auto count = recv(m_socket.number(), piece.data(), piece.size(), 0);
    if (count < 0 && (errno == EAGAIN || errno == EINTR))
        return;
    if (count <= 0 || !m_handler) // Nothing may follow the request.
        return hangUp();
    const auto searched = m_received.size();
    m_received.append(piece.data(), count);
    const auto end = m_received.indexOf('\n', searched);
    if ((end < 0 ? m_received.size() : end) > Control::longestRequest) {
        m_handler = nullptr;
        answer(CaptureReport {.outcome = CaptureReport::Outcome::Failed,
            .reason = QStringLiteral("The request is too long.")});
    } else if (end >= 0) {
        takeRequest(m_received.first(end));
    }
}

void ControlConnection::takeRequest(const QByteArray& line)
{
    m_deadline.stop();
    m_received = {};
    const auto handler = std::exchange(m_handler, nullptr);
    const auto request = Control::requestFrom(line);
    if (request)
        handler(*this, *request);
    else
        answer(CaptureReport {
            .outcome = CaptureReport::Outcome::Failed, .reason = request.error().message});
}

void ControlConnection::answer(const Control::Answer& answer, Afterwards afterwards)
{
    m_received = {};
    m_unsent = Control::toLine(answer);
    m_afterwards = afterwards;
    m_deadline.start();
    send();
}

void ControlConnection::send()
{
    if (!m_socket)
        return; // Hung up, and about to be deleted.
    while (!m_unsent.isEmpty()) {
        const auto count = ::send(
            m_socket.number(), m_unsent.constData(), std::size_t(m_unsent.size()), MSG_NOSIGNAL);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0 && errno == EAGAIN)
            return m_writable.setEnabled(true);
        if (count < 0)
            return hangUp();
        m_unsent.remove(0, count);
    }
    m_writable.setEnabled(false);
    m_deadline.stop();
    if (m_afterwards == Afterwards::HangUp)
        hangUp();
}

void ControlConnection::hangUp()
{
    m_readable.setEnabled(false);
    m_writable.setEnabled(false);
    m_deadline.stop();
    m_socket = {};
    deleteLater();
}
