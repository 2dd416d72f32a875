// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "app/dbus/BusNames.h"
#include "tests/resident/ResidentDesktop.h"

#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusVariant>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QString properties = u"org.freedesktop.DBus.Properties"_s;
const QString application = u"org.freedesktop.Application"_s;
const QString daemon = u"org.freedesktop.DBus"_s;

/// Another program of the user, which talks to the resident one over a bus.
class Caller final : public QObject {
    Q_OBJECT

public:
    explicit Caller(const QString& address)
        : m_bus(QDBusConnection::connectToBus(address, u"caller"_s))
    {
        const auto listen
            = [this](const QString& interface, const QString& name, const char* slot) {
                  EXPECT_TRUE(m_bus.connect({}, BusNames::path(), interface, name, this, slot));
              };
        listen(BusNames::interface(), u"Captured"_s, SLOT(noteCapture(QVariantMap)));
        listen(BusNames::interface(), u"HistoryChanged"_s, SLOT(noteHistory()));
        listen(properties, u"PropertiesChanged"_s,
            SLOT(noteProperties(QString, QVariantMap, QStringList)));
    }
    ~Caller() override { QDBusConnection::disconnectFromBus(u"caller"_s); }

    QDBusPendingCall ask(const QString& member, const QVariantList& arguments,
        const QString& interface = BusNames::interface())
    {
        auto call = interface == daemon
            ? QDBusMessage::createMethodCall(daemon, u"/org/freedesktop/DBus"_s, daemon, member)
            : QDBusMessage::createMethodCall(
                BusNames::service(), BusNames::path(), interface, member);
        call.setArguments(arguments);
        return m_bus.asyncCall(call);
    }

    static QDBusMessage answerTo(const QDBusPendingCall& asked)
    {
        EXPECT_TRUE(waitFor([&] { return asked.isFinished(); }));
        return asked.reply();
    }

    QDBusMessage call(const QString& member, const QVariantList& arguments = {},
        const QString& interface = BusNames::interface())
    {
        return answerTo(ask(member, arguments, interface));
    }

    QVariantMap values(const QString& member, const QVariantList& arguments)
    {
        const auto reply = call(member, arguments);
        EXPECT_EQ(reply.type(), QDBusMessage::ReplyMessage) << reply.errorMessage().toStdString();
        return qdbus_cast<QVariantMap>(reply.arguments().value(0));
    }

    QVariant property(const QString& name)
    {
        const auto reply = call(u"Get"_s, {BusNames::interface(), name}, properties);
        return reply.arguments().value(0).value<QDBusVariant>().variant();
    }

    /// Of the program's name; empty where nobody has it.
    QString owner()
    {
        const auto reply = call(u"GetNameOwner"_s, {BusNames::service()}, daemon);
        return reply.type() == QDBusMessage::ReplyMessage ? reply.arguments().first().toString()
                                                          : QString();
    }

    QList<QVariantMap> captures;
    int historyChanges = 0;
    QList<bool> busy;

public Q_SLOTS:
    void noteCapture(const QVariantMap& result) { captures << result; }
    void noteHistory() { ++historyChanges; }
    void noteProperties(const QString&, const QVariantMap& changed, const QStringList&)
    {
        busy << changed[u"Busy"_s].toBool();
    }

private:
    QDBusConnection m_bus;
};

/// Of an error of ours what follows the common part; of any other one, all.
std::string errorOf(const QDBusMessage& reply)
{
    return reply.errorName().remove(BusNames::interface() + u".Error."_s).toStdString();
}

class BusTest : public ResidentDesktop<plainDesktop> {
protected:
    void SetUp() override
    {
        ResidentDesktop::SetUp();
        if (IsSkipped())
            return;
        resident = launch({u"--background"_s});
        caller = std::make_unique<Caller>(
            desktop().environment().value(u"DBUS_SESSION_BUS_ADDRESS"_s));
        ASSERT_TRUE(waitFor([this] { return !caller->owner().isEmpty(); }));
        EXPECT_TRUE(picture().save(file()));
    }

    static std::unique_ptr<Client> launch(const QStringList& arguments)
    {
        auto started = desktop().launch(u"pixmallow-desktop"_s, arguments);
        EXPECT_TRUE(started);
        return *std::move(started);
    }

    static QImage picture()
    {
        return pictureOf({.seed = 7}, {300, 200}).convertToFormat(QImage::Format_RGB32);
    }
    static QString file() { return desktop().home() + u"/a picture.png"_s; }

    /// Those that the window manager manages.
    static std::size_t windows()
    {
        return desktop().property(desktop().screen().root, "_NET_CLIENT_LIST").size();
    }

    std::unique_ptr<Client> resident;
    std::unique_ptr<Caller> caller;
};

/// As headings of the document name them.
class Members {
public:
    explicit Members(const QString& introspection)
        : m_xml(introspection)
    {
        while (!m_xml.atEnd())
            if (m_xml.readNextStartElement() && m_xml.name() == "interface"_L1
                && m_xml.attributes().value("name"_L1).startsWith(BusNames::service()))
                readInterface();
    }

    QStringList headings;

private:
    void readInterface()
    {
        while (m_xml.readNextStartElement()) {
            const auto kind = m_xml.name().toString();
            const auto name = m_xml.attributes().value("name"_L1).toString();
            if (kind == u"property"_s) {
                headings << u"### %1 %2"_s.arg(name, m_xml.attributes().value("type"_L1));
                m_xml.skipCurrentElement();
            } else {
                headings << u"### "_s + name + arguments();
            }
        }
    }

    QString arguments()
    {
        QStringList in, out;
        while (m_xml.readNextStartElement()) {
            const auto attributes = m_xml.attributes();
            if (m_xml.name() == "arg"_L1)
                (attributes.value("direction"_L1) == "out"_L1 ? out : in)
                    << u"%1 %2"_s.arg(attributes.value("name"_L1), attributes.value("type"_L1));
            m_xml.skipCurrentElement();
        }
        const QString result = out.isEmpty() ? QString() : u" → "_s + out.join(u", "_s);
        return u'(' + in.join(u", "_s) + u')' + result;
    }

    QXmlStreamReader m_xml;
};

} // namespace

TEST_F(BusTest, capturesWhatTheSocketCaptures)
{
    const auto window = open({u"--pattern"_s, u"1"_s, u"--geometry"_s, u"200,150,600x400"_s});
    auto overBus = caller->values(u"Capture"_s, {u"screen"_s, QVariantMap()});
    auto overSocket = capture(u"screen"_s).toVariantMap();
    EXPECT_TRUE(equal(QImage(overBus[u"path"_s].toString()), desktop().rootPixels()));
    for (const auto& own : {u"path"_s, u"historyId"_s})
        EXPECT_NE(overBus.take(own).toString(), overSocket.take(own).toString());
    EXPECT_EQ(QJsonObject::fromVariantMap(overBus), QJsonObject::fromVariantMap(overSocket));
    EXPECT_EQ(overBus[u"width"_s].typeId(), QMetaType::Int);

    const auto began
        = caller->values(u"Capture"_s, {u"screen"_s, QVariantMap {{u"wait"_s, false}}});
    EXPECT_EQ(began, (QVariantMap {{u"outcome"_s, u"accepted"_s}}));
    EXPECT_TRUE(waitFor([&] { return caller->captures.size() == 3; }))
        << "however it was asked for";
    EXPECT_EQ(caller->captures.first()[u"outcome"_s], u"done"_s);
    EXPECT_EQ(caller->historyChanges, 3);

    const auto refused = [&](const QString& kind, const QVariantMap& options) {
        return errorOf(caller->call(u"Capture"_s, {kind, options}));
    };
    EXPECT_EQ(refused(u"door"_s, {}), "InvalidArguments");
    EXPECT_EQ(refused(u"screen"_s, {{u"wiat"_s, true}}), "InvalidArguments");
    EXPECT_EQ(refused(u"screen"_s, {{u"wait"_s, u"no"_s}}), "InvalidArguments");
    EXPECT_EQ(errorOf(caller->call(u"Capture"_s)), "org.freedesktop.DBus.Error.UnknownMethod");
    EXPECT_EQ(caller->captures.size(), 3);
}

TEST_F(BusTest, saysWhenItIsBusyAndWhenTheUserCancels)
{
    const QImage before = desktop().rootPixels();
    const auto covered = [&] { return !equal(desktop().rootPixels(), before); };
    EXPECT_FALSE(caller->property(u"Busy"_s).toBool());
    const auto asked = caller->ask(u"Capture"_s, {u"region"_s, QVariantMap()});
    ASSERT_TRUE(waitFor(covered));
    EXPECT_TRUE(caller->property(u"Busy"_s).toBool());
    EXPECT_EQ(errorOf(caller->call(u"Capture"_s, {u"screen"_s, QVariantMap()})), "Busy");
    EXPECT_EQ(pixmallow({u"capture"_s, u"screen"_s, u"--wait"_s}).exitCode, 3);
    EXPECT_TRUE(waitFor([&] { // It is seen a moment before it has the keyboard.
        desktop().key("Escape");
        return waitFor([&] { return asked.isFinished(); }, 300ms);
    }));
    EXPECT_EQ(errorOf(Caller::answerTo(asked)), "Cancelled");
    EXPECT_TRUE(waitFor([&] { return caller->busy == QList {true, false}; }));
    EXPECT_TRUE(caller->captures.isEmpty());

    ASSERT_TRUE(waitFor([&] { return !covered(); }));
    const auto interrupted = caller->ask(u"Capture"_s, {u"region"_s, QVariantMap()});
    ASSERT_TRUE(waitFor(covered));
    pixmallow({u"quit"_s});
    EXPECT_EQ(errorOf(Caller::answerTo(interrupted)), "Cancelled") << "not left without an answer";
}

TEST_F(BusTest, findsAndUsesEntriesOfTheHistory)
{
    const auto taken = caller->values(u"Capture"_s, {u"screen"_s, QVariantMap()});
    const auto id = taken[u"historyId"_s].toString();
    capture(u"screen"_s);
    const auto found = [&](const QString& words, uint limit) {
        return qdbus_cast<QList<QVariantMap>>(
            caller->call(u"History"_s, {words, limit}).arguments().value(0));
    };
    EXPECT_GE(found({}, 0).size(), 2);
    EXPECT_EQ(found({}, 1).size(), 1);
    EXPECT_TRUE(found(u"nothing of that kind"_s, 0).isEmpty());
    const auto named = found(QFileInfo(taken[u"path"_s].toString()).fileName().toUpper(), 0);
    ASSERT_FALSE(named.isEmpty());
    EXPECT_EQ(named.last()[u"id"_s], id);
    EXPECT_EQ(named.last()[u"path"_s], taken[u"path"_s]);
    EXPECT_EQ(named.last()[u"saved"_s], true);

    EXPECT_EQ(errorOf(caller->call(u"Edit"_s, {id})), "");
    EXPECT_TRUE(waitFor([] { return windows() == 1; }));
    EXPECT_EQ(errorOf(caller->call(u"ShowHistory"_s)), "");
    EXPECT_TRUE(waitFor([] { return windows() == 2; }));
    EXPECT_EQ(errorOf(caller->call(u"Copy"_s, {id})), "");
    EXPECT_TRUE(
        equal(QImage::fromData(clipboard(u"image/png"_s)), QImage(taken[u"path"_s].toString())));
    EXPECT_EQ(errorOf(caller->call(u"Remove"_s, {id})), "");
    for (const auto& deed : {u"Edit"_s, u"Pin"_s, u"Copy"_s, u"Reveal"_s, u"Remove"_s})
        EXPECT_EQ(errorOf(caller->call(deed, {id})), "NotFound") << deed.toStdString();
    EXPECT_TRUE(QFile::exists(taken[u"path"_s].toString())) << "a file of the user's";
}

TEST_F(BusTest, opensFilesThatArePictures)
{
    QFile text(desktop().home() + u"/text.png"_s);
    ASSERT_TRUE(text.open(QIODevice::WriteOnly));
    text.write("no picture");
    text.close();
    for (const auto& method : {u"EditFile"_s, u"PinFile"_s}) {
        const auto refused
            = [&](const QString& path) { return errorOf(caller->call(method, {path})); };
        EXPECT_EQ(refused(text.fileName()), "Failed");
        EXPECT_EQ(refused(desktop().home()), "Failed");
        EXPECT_EQ(refused(u"/nowhere/a.png"_s), "NotFound");
        EXPECT_EQ(refused(u"a picture.png"_s), "InvalidArguments");
        EXPECT_EQ(refused({}), "InvalidArguments");
    }
    EXPECT_EQ(windows(), 0u);

    EXPECT_EQ(errorOf(caller->call(u"PinFile"_s, {file()})), "");
    const QRect inside = QRect(490, 300, 300, 200).adjusted(8, 8, -8, -8);
    EXPECT_TRUE(waitFor([&] {
        return equal(desktop().rootPixels(inside), picture().copy(inside.translated(-490, -300)));
    }));
    EXPECT_EQ(errorOf(caller->call(u"EditFile"_s, {file()})), "");
    EXPECT_TRUE(waitFor([] { return windows() == 1; }));
}

TEST_F(BusTest, doesWhatTheDesktopAsksOfAnApplication)
{
    const auto act = [&](const QString& name) {
        return errorOf(
            caller->call(u"ActivateAction"_s, {name, QVariantList(), QVariantMap()}, application));
    };
    EXPECT_EQ(act(u"history"_s), "");
    EXPECT_TRUE(waitFor([] { return windows() == 1; }));
    EXPECT_EQ(act(u"screen"_s), "");
    EXPECT_TRUE(waitFor([&] { return caller->captures.size() == 1; }));
    EXPECT_EQ(act(u"dance"_s), "InvalidArguments");

    const auto opened = [&](const QString& uri) {
        const QVariantMap data {{u"activation-token"_s, u"token"_s}};
        return errorOf(caller->call(u"Open"_s, {QStringList {uri}, data}, application));
    };
    EXPECT_EQ(opened(QUrl::fromLocalFile(file()).toString()), "");
    EXPECT_TRUE(waitFor([] { return windows() == 2; }));
    EXPECT_EQ(opened(u"https://pixmallow.example/a.png"_s), "InvalidArguments");
    EXPECT_EQ(opened(u"file:///nowhere/a.png"_s), "NotFound");
}

TEST_F(BusTest, handsItsNameToTheProgramThatReplacesIt)
{
    const auto before = caller->owner();
    auto replacement = launch({u"--replace"_s});
    ASSERT_TRUE(resident->waitForEnd());
    ASSERT_TRUE(waitFor([&] { return !caller->owner().isEmpty() && caller->owner() != before; }));
    EXPECT_EQ(caller->values(u"Capture"_s, {u"screen"_s, QVariantMap()})[u"outcome"_s], u"done"_s);
    EXPECT_TRUE(replacement->isRunning());
}

TEST_F(BusTest, describesItselfAsItsDocumentDoes)
{
    const auto introspection
        = caller->call(u"Introspect"_s, {}, u"org.freedesktop.DBus.Introspectable"_s)
              .arguments()
              .value(0)
              .toString();
    EXPECT_TRUE(introspection.contains(application));
    QFile document(u"" PIXMALLOW_SOURCES "/docs/dbus.md"_s);
    ASSERT_TRUE(document.open(QIODevice::ReadOnly));
    QStringList documented;
    for (const auto& line : QString::fromUtf8(document.readAll()).split(u'\n'))
        if (line.startsWith(u"### "_s))
            documented << line;
    auto exported = Members(introspection).headings;
    exported.sort();
    documented.sort();
    EXPECT_EQ(exported.join(u'\n').toStdString(), documented.join(u'\n').toStdString());
    EXPECT_FALSE(caller->property(u"Version"_s).toString().isEmpty());
}

using StartTest = ResidentDesktop<plainDesktop>;

TEST_F(StartTest, isStartedByTheBusWhenItIsNeeded)
{
    const QString home = desktop().home();
    const auto write = [&](const QString& name, const QString& text) {
        const QString path = home + u'/' + name;
        QDir().mkpath(QFileInfo(path).path());
        QFile written(path);
        EXPECT_TRUE(written.open(QIODevice::WriteOnly));
        written.write(text.toUtf8());
        return path;
    };
    QFile packaged(u"" PIXMALLOW_SOURCES "/packaging/dbus.service.in"_s);
    ASSERT_TRUE(packaged.open(QIODevice::ReadOnly));
    write(u"data/dbus-1/services/%1.service"_s.arg(BusNames::service()),
        QString::fromUtf8(packaged.readAll())
            .replace(u"@PIXMALLOW_APPLICATION_ID@"_s, BusNames::service())
            .replace(u"@PIXMALLOW_PROGRAMS@"_s, QCoreApplication::applicationDirPath()));
    const auto configuration = write(u"bus.conf"_s,
        u"<busconfig><type>session</type><listen>unix:path=%1/bus</listen>"
        "<standard_session_servicedirs/><policy context=\"default\">"
        "<allow send_destination=\"*\"/><allow receive_sender=\"*\"/><allow own=\"*\"/></policy></busconfig>"_s
            .arg(home));
    auto environment = desktop().environment();
    environment.insert(u"XDG_DATA_DIRS"_s, home + u"/data"_s);
    Client bus(environment);
    ASSERT_TRUE(bus.start(u"dbus-daemon"_s,
        {u"--config-file="_s + configuration, u"--nofork"_s, u"--print-address=1"_s}));
    const auto address = QString::fromLatin1(bus.waitForLine("unix:"));
    ASSERT_FALSE(address.isEmpty());
    Caller caller(address);
    EXPECT_EQ(caller.owner(), QString());

    const QImage before = desktop().rootPixels();
    EXPECT_EQ(errorOf(caller.call(u"Activate"_s, {QVariantMap()}, application)), "");
    EXPECT_TRUE(waitFor([&] { return !equal(desktop().rootPixels(), before); }));
    EXPECT_EQ(caller.values(u"Capture"_s, {u"screen"_s, QVariantMap()})[u"outcome"_s], u"done"_s);
    EXPECT_EQ(capture(u"screen"_s)[u"outcome"_s], u"done"_s) << "and it is the resident one";

    pixmallow({u"quit"_s});
    EXPECT_EQ(caller.values(u"Capture"_s, {u"screen"_s, QVariantMap()})[u"outcome"_s], u"done"_s);
    pixmallow({u"quit"_s});
}

TEST_F(StartTest, worksWithoutABus)
{
    auto environment = desktop().environment();
    environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, u"unix:path=/nowhere/bus"_s);
    Client resident(environment);
    ASSERT_TRUE(resident.start(desktop().find(u"pixmallow-desktop"_s), {u"--background"_s}));
    ASSERT_TRUE(waitUntilResidentListens());
    EXPECT_EQ(capture(u"screen"_s)[u"outcome"_s], u"done"_s);
    EXPECT_TRUE(resident.isRunning()) << "that one took the capture";
    pixmallow({u"quit"_s});
    EXPECT_TRUE(resident.waitForEnd());
    EXPECT_EQ(resident.errors().toStdString(), "");
}

#include "BusTest.moc"
