// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/PortalRequest.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QFile>
#include <QRandomGenerator>

using namespace Qt::StringLiterals;

namespace {

const QString service = u"org.freedesktop.portal.Desktop"_s;

enum Response : uint { Done, Cancelled };

/// Where the answer to a request of this connection comes from.
QString pathOf(const QString& token)
{
    const QString sender = QDBusConnection::sessionBus().baseService().mid(1).replace(u'.', u'_');
    return u"/org/freedesktop/portal/desktop/request/%1/%2"_s.arg(sender, token);
}

} // namespace

PortalRequest::PortalRequest(Answered answered)
    : m_answered(std::move(answered))
{
}

void PortalRequest::send(const Call& call, Answered answered)
{
    (new PortalRequest(std::move(answered)))->start(call);
}

void PortalRequest::start(const Call& call)
{
    auto bus = QDBusConnection::sessionBus();
    const QString token = u"pixmallow%1"_s.arg(QRandomGenerator::global()->generate());
    // Before the call, as the answer may come before the call returns.
    bus.connect(service, pathOf(token), u"org.freedesktop.portal.Request"_s, u"Response"_s, this,
        SLOT(respond(uint)));
    // A portal that dies never answers.
    m_portal.setConnection(bus);
    m_portal.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
    m_portal.addWatchedService(service);
    connect(&m_portal, &QDBusServiceWatcher::serviceUnregistered, this,
        [this] { end(Error::failed(tr("The desktop's portal has ended."))); });

    QVariantMap options = call.options;
    options[u"handle_token"_s] = token;
    auto message = QDBusMessage::createMethodCall(
        service, u"/org/freedesktop/portal/desktop"_s, call.interface, call.method);
    message.setArguments(QVariantList(call.arguments) << options);
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        const QDBusPendingReply<QDBusObjectPath> reply = *watcher;
        if (reply.isError())
            end(Error::failed(reply.error().message()));
    });
}

void PortalRequest::respond(uint response)
{
    if (response == Done)
        end({});
    else if (response == Cancelled)
        end(Error::cancelled());
    else
        end(Error::failed(tr("The desktop's portal could not do it.")));
}

void PortalRequest::end(const Result<void>& result)
{
    if (const auto answered = std::exchange(m_answered, nullptr))
        answered(result);
    deleteLater();
}

QDBusUnixFileDescriptor descriptorOf(const QString& path)
{
    QFile file(path);
    // The descriptor is a copy, which outlives the file.
    return file.open(QIODevice::ReadOnly) ? QDBusUnixFileDescriptor(file.handle())
                                          : QDBusUnixFileDescriptor();
}
