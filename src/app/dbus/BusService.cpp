// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "app/dbus/BusService.h"

#include "app/dbus/BusNames.h"
#include "app/dbus/applicationadaptor.h"
#include "app/dbus/pixmallow1adaptor.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

constexpr int releaseMilliseconds = 1000; ///< That the bus may take at the end.

QDBusMessage callOfBus(const QString& method, const QVariantList& arguments)
{
    auto call = QDBusMessage::createMethodCall(
        u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s, u"org.freedesktop.DBus"_s, method);
    call.setArguments(arguments);
    return call;
}

/// Before the program ends, so that calls which come now go to the one that takes its place.
void releaseName()
{
    QDBusConnection::sessionBus().call(
        callOfBus(u"ReleaseName"_s, {BusNames::service()}), QDBus::Block, releaseMilliseconds);
}

} // namespace

BusService::BusService(BusObject::Means means)
    : m_object(std::move(means))
{
    QTimer::singleShot(0, this, [this] { appear(); });
}

void BusService::appear()
{
    auto bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    qDBusRegisterMetaType<QList<QVariantMap>>();
    new Pixmallow1Adaptor(&m_object);
    new ApplicationAdaptor(&m_object);
    connect(&m_object, &BusObject::busyChanged, this, &BusService::tellBusy);
    if (!bus.registerObject(BusNames::path(), &m_object))
        return;
    constexpr uint waitForIt = 0; // In the queue of those who would like to have the name.
    bus.asyncCall(callOfBus(u"RequestName"_s, {BusNames::service(), waitForIt}));
    connect(qApp, &QCoreApplication::aboutToQuit, this, &releaseName);
}

/// The toolkit announces no changes of properties.
void BusService::tellBusy(bool isBusy) const
{
    auto changed = QDBusMessage::createSignal(
        BusNames::path(), u"org.freedesktop.DBus.Properties"_s, u"PropertiesChanged"_s);
    changed << BusNames::interface() << QVariantMap {{u"Busy"_s, isBusy}} << QStringList();
    QDBusConnection::sessionBus().send(changed);
}
