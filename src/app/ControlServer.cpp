// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "app/ControlServer.h"

#include "app/ControlConnection.h"
#include "base/FileLock.h"
#include "base/LocalSocket.h"
#include "base/Words.h"

#include <QCoroTask>
#include <QFile>
#include <QPointer>

#include <sys/socket.h>
#include <sys/stat.h>

#include <cerrno>

using namespace Qt::StringLiterals;

namespace {

/// More wait until the system lets them in.
constexpr int mostClients = 128;

Result<Descriptor> lock(const QString& path)
{
    auto file = lockFile(path);
    if (!file && file.error().kind == Error::Kind::Exists)
        return Error {Error::Kind::Exists, Words::tr("Pixmallow is running already.")};
    // What cleans runtime folders of old files leaves sticky ones alone.
    // https://specifications.freedesktop.org/basedir-spec/latest/
    if (file)
        (void)fchmod(file->number(), 0600 | S_ISVTX);
    return file;
}

QCoro::Task<> answerLater(Pending<CaptureReport> pending, QPointer<ControlConnection> client)
{
    const auto result = co_await pending;
    if (client)
        client->answer(Control::reportOf(result));
}

} // namespace

Result<std::unique_ptr<ControlServer>> ControlServer::listen(const Folders& folders)
{
    if (const auto made = ensurePrivateFolder(folders.runtime); !made)
        return made.error();
    auto locked = lock(folders.runtime + u"/lock"_s);
    if (!locked)
        return locked.error();
    const QString path = Control::socketPath(folders);
    auto socket = LocalSocket::listen(path);
    if (!socket)
        return socket.error();
    return std::unique_ptr<ControlServer>(
        new ControlServer(*std::move(locked), *std::move(socket), path));
}

ControlServer::ControlServer(Descriptor lock, Descriptor socket, QString path)
    : m_lock(std::move(lock))
    , m_socket(std::move(socket))
    , m_path(std::move(path))
    , m_arrivals(m_socket.number(), QSocketNotifier::Read)
{
    m_arrivals.setEnabled(false);
    connect(&m_arrivals, &QSocketNotifier::activated, this, [this] { accept(); });
}

ControlServer::~ControlServer()
{
    QFile::remove(m_path); // Before the lock goes: later it may be another program's.
    // The lock goes with the members. Then ~QObject hangs up on those who wait for that.
}

void ControlServer::serve(Requests requests, std::chrono::milliseconds patience)
{
    m_requests = std::move(requests);
    m_patience = patience;
    m_arrivals.setEnabled(true);
}

void ControlServer::accept()
{
    Descriptor socket(accept4(m_socket.number(), nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC));
    if (!socket) {
        if (errno != EAGAIN && errno != EINTR && errno != ECONNABORTED)
            pauseAccepting();
        return;
    }
    if (!LocalSocket::isSameUser(socket))
        return;
    auto* client = new ControlConnection(
        std::move(socket), m_patience,
        [this](
            ControlConnection& asker, const Control::Request& request) { follow(asker, request); },
        this);
    m_arrivals.setEnabled(++m_clients < mostClients);
    connect(client, &QObject::destroyed, this, [this] {
        --m_clients;
        m_arrivals.setEnabled(true);
    });
}

void ControlServer::pauseAccepting()
{
    // Out of descriptors, most likely. The client stays in the queue and would be announced again
    // and again without a pause.
    m_arrivals.setEnabled(false);
    QTimer::singleShot(
        std::chrono::seconds(1), this, [this] { m_arrivals.setEnabled(m_clients < mostClients); });
}

void ControlServer::follow(ControlConnection& client, const Control::Request& request)
{
    if (const auto* wanted = std::get_if<Control::Capture>(&request))
        return capture(client, *wanted);
    if (const auto* wanted = std::get_if<Control::Pin>(&request)) {
        answerLater(m_requests.pin(wanted->paths), &client);
        return;
    }
    if (const auto* wanted = std::get_if<Control::Edit>(&request)) {
        answerLater(m_requests.edit(wanted->paths), &client);
        return;
    }
    if (std::holds_alternative<Control::Shortcuts>(request))
        return client.answer(Control::ShortcutReport {m_requests.refusedShortcuts()});
    const bool quits = std::holds_alternative<Control::Quit>(request);
    client.answer(Control::Accepted {},
        quits ? ControlConnection::Afterwards::Stay : ControlConnection::Afterwards::HangUp);
    if (quits)
        m_requests.quit();
    else if (const auto* wanted = std::get_if<Control::Show>(&request))
        m_requests.show(wanted->what);
    else
        m_requests.showPanel();
}

void ControlServer::capture(ControlConnection& client, Control::Capture request)
{
    auto pending = m_requests.capture(request.kind);
    if (pending.await_ready())
        client.answer(Control::reportOf(pending.await_resume()));
    else if (request.wait)
        answerLater(std::move(pending), &client);
    else
        client.answer(Control::Accepted {});
}
