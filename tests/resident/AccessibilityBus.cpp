// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/resident/AccessibilityBus.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDBusVariant>
#include <QFile>

using namespace Qt::StringLiterals;

// https://gitlab.gnome.org/GNOME/at-spi2-core/-/tree/main/xml
namespace {

const QString launcherPath = u"/usr/libexec/at-spi-bus-launcher"_s;
const QString busName = u"accessibility"_s;
const QString accessible = u"org.a11y.atspi.Accessible"_s;
const QString actionInterface = u"org.a11y.atspi.Action"_s;
constexpr int mostObjects = 5000;

struct State {
    QLatin1String name;
    int bit; ///< Of the first word, as the protocol counts them.
};
constexpr std::array states {State {QLatin1String("checked"), 4},
    State {QLatin1String("focused"), 12}, State {QLatin1String("selected"), 23},
    State {QLatin1String("showing"), 25}};

QDBusMessage call(const QDBusConnection& bus, const QString& service, const QString& path,
    const QString& interface, const QString& method, const QVariantList& arguments = {})
{
    auto message = QDBusMessage::createMethodCall(service, path, interface, method);
    message.setArguments(arguments);
    return bus.call(message, QDBus::Block, 2000);
}

QVariant property(const QDBusConnection& bus, const QString& service, const QString& path,
    const QString& interface, const QString& name)
{
    const auto answer = call(
        bus, service, path, u"org.freedesktop.DBus.Properties"_s, u"Get"_s, {interface, name});
    return answer.arguments().isEmpty()
        ? QVariant()
        : answer.arguments().first().value<QDBusVariant>().variant();
}

QSet<QString> statesOf(const QDBusMessage& answer)
{
    QSet<QString> found;
    if (answer.arguments().isEmpty())
        return found;
    QList<uint> words;
    answer.arguments().first().value<QDBusArgument>() >> words;
    for (const State& state : states)
        if (!words.isEmpty() && words[0] >> state.bit & 1u)
            found << state.name;
    return found;
}

} // namespace

bool AccessibilityBus::isInstalled()
{
    return QFile::exists(launcherPath);
}

AccessibilityBus::AccessibilityBus(std::unique_ptr<Client> launcher, QDBusConnection bus)
    : m_launcher(std::move(launcher))
    , m_bus(std::move(bus))
{
}

AccessibilityBus::~AccessibilityBus()
{
    QDBusConnection::disconnectFromBus(busName);
}

Result<std::unique_ptr<AccessibilityBus>> AccessibilityBus::start(const VirtualDesktop& desktop)
{
    auto launcher = desktop.launch(launcherPath, {u"--launch-immediately"_s, u"--a11y=1"_s});
    if (!launcher)
        return launcher.error();
    const QString session = u"session of the desktop"_s;
    const auto sessionBus = QDBusConnection::connectToBus(
        desktop.environment().value(u"DBUS_SESSION_BUS_ADDRESS"_s), session);
    QString address;
    const bool isThere = waitFor([&] {
        const QDBusReply<QString> answer = call(
            sessionBus, u"org.a11y.Bus"_s, u"/org/a11y/bus"_s, u"org.a11y.Bus"_s, u"GetAddress"_s);
        address = answer.isValid() ? answer.value() : QString();
        return !address.isEmpty();
    });
    QDBusConnection::disconnectFromBus(session);
    if (!isThere)
        return Error::failed(u"The accessibility bus did not start."_s);
    const auto bus = QDBusConnection::connectToBus(address, busName);
    if (!bus.isConnected())
        return Error::failed(bus.lastError().message());
    return std::unique_ptr<AccessibilityBus>(new AccessibilityBus(*std::move(launcher), bus));
}

QList<AccessibilityBus::Object> AccessibilityBus::objects() const
{
    QList<Object> objects;
    collect(objects, u"org.a11y.atspi.Registry"_s, u"/org/a11y/atspi/accessible/root"_s, -1);
    return objects;
}

void AccessibilityBus::collect(
    QList<Object>& objects, const QString& service, const QString& path, int parent) const
{
    if (objects.size() >= mostObjects)
        return;
    const auto ask
        = [&](const QString& method) { return call(m_bus, service, path, accessible, method); };
    Object object {service, path, QDBusReply<QString>(ask(u"GetRoleName"_s)).value(),
        property(m_bus, service, path, accessible, u"Name"_s).toString(),
        statesOf(ask(u"GetState"_s)), parent};
    const int self = int(objects.size());
    objects << object;
    const auto answer = ask(u"GetChildren"_s);
    if (answer.arguments().isEmpty())
        return;
    QList<std::pair<QString, QDBusObjectPath>> children;
    const auto list = answer.arguments().first().value<QDBusArgument>();
    list.beginArray();
    while (!list.atEnd()) {
        std::pair<QString, QDBusObjectPath> child;
        list.beginStructure();
        list >> child.first >> child.second;
        list.endStructure();
        children << child;
    }
    list.endArray();
    for (const auto& [childService, childPath] : children)
        collect(objects, childService, childPath.path(), self);
}

bool AccessibilityBus::press(const Object& object) const
{
    const QDBusReply<bool> answer
        = call(m_bus, object.service, object.path, actionInterface, u"DoAction"_s, {0});
    return answer.isValid() && answer.value();
}

const AccessibilityBus::Object* AccessibilityBus::find(
    const QList<Object>& objects, const QString& role, const QString& name)
{
    for (const Object& each : objects)
        if (each.role == role && each.name.contains(name))
            return &each;
    return nullptr;
}
