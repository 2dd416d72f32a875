// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/DesktopWorkspace.h"
#include "tests/desktop/DesktopTest.h"

#include <gmock/gmock.h>

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusUnixFileDescriptor>
#include <QDBusVirtualObject>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

/// A file manager as others see it.
class FileManager final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

public Q_SLOTS:
    void ShowItems(const QStringList& urls, const QString&) { shown += urls; }

public:
    QStringList shown;
};

/// Opens what the desktop is asked to open.
class Opener final : public QObject {
    Q_OBJECT

public:
    Opener() { QDesktopServices::setUrlHandler(u"file"_s, this, "open"); }
    ~Opener() override { QDesktopServices::unsetUrlHandler(u"file"_s); }

    QList<QUrl> opened;

public Q_SLOTS:
    void open(const QUrl& url) { opened << url; }
};

/// The desktop's portal, in place of the user who answers what it asks.
class Portal final : public QDBusVirtualObject {
    Q_OBJECT

public:
    explicit Portal(uint response)
        : m_response(response)
    {
        EXPECT_TRUE(m_bus.registerVirtualObject(u"/org/freedesktop/portal/desktop"_s, this));
        EXPECT_TRUE(m_bus.registerService(u"org.freedesktop.portal.Desktop"_s));
    }
    ~Portal() override { QDBusConnection::disconnectFromBus(u"portal"_s); }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override
    {
        asked << message.interface() + u'.' + message.member();
        const auto arguments = message.arguments();
        options = qdbus_cast<QVariantMap>(arguments.last());
        const auto file = message.member() == u"ComposeEmail"_s
            ? qdbus_cast<QList<QDBusUnixFileDescriptor>>(options[u"attachment_fds"_s]).value(0)
            : arguments.at(1).value<QDBusUnixFileDescriptor>();
        QFile handed;
        if (handed.open(file.fileDescriptor(), QIODevice::ReadOnly))
            content = handed.readAll();

        const QString sender = message.service().mid(1).replace(u'.', u'_');
        const QString path = u"/org/freedesktop/portal/desktop/request/%1/%2"_s.arg(
            sender, options[u"handle_token"_s].toString());
        bus.send(message.createReply(QVariant::fromValue(QDBusObjectPath(path))));
        if (m_response == dies) {
            m_bus.unregisterService(u"org.freedesktop.portal.Desktop"_s);
            return true;
        }
        auto answer
            = QDBusMessage::createSignal(path, u"org.freedesktop.portal.Request"_s, u"Response"_s);
        answer << m_response << QVariantMap();
        bus.send(answer);
        return true;
    }

    static constexpr uint done = 0, cancels = 1, fails = 2, dies = 3;

    QStringList asked;
    QVariantMap options;
    QByteArray content; ///< Of the file that was handed over.

private:
    const uint m_response;
    QDBusConnection m_bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"portal"_s);
};

class WorkspaceTest : public DesktopTest<> {
protected:
    static void write(const QString& path, const QByteArray& content)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    /// The file that is shared.
    QString file() const
    {
        const QString path = desktop().home() + u"/Büro 1.png"_s;
        write(path, "pixels");
        return path;
    }

    /// Installs one of the desktop's helpers, which writes down what it is called with.
    void install(const QString& helper, int exitCode)
    {
        const QString folder = desktop().home() + u"/bin"_s;
        QDir().mkpath(folder);
        qputenv("PATH", folder.toUtf8() + ':' + m_path);
        write(folder + u'/' + helper,
            "#!/bin/sh\nprintf '%s ' \"$@\" > \"$HOME/called\"\nexit "
                + QByteArray::number(exitCode) + '\n');
    }
    QString called() const
    {
        QFile said(desktop().home() + u"/called"_s);
        return said.open(QIODevice::ReadOnly) ? QString::fromUtf8(said.readAll()) : QString();
    }

    void TearDown() override
    {
        qputenv("PATH", m_path);
        if (!IsSkipped())
            QFile::remove(desktop().home() + u"/called"_s);
    }

    DesktopWorkspace workspace;

private:
    const QByteArray m_path = qgetenv("PATH");
};

} // namespace

TEST_F(WorkspaceTest, revealsAFileInTheFileManager)
{
    FileManager manager;
    auto bus = QDBusConnection::sessionBus();
    ASSERT_TRUE(bus.registerService(u"org.freedesktop.FileManager1"_s));
    ASSERT_TRUE(bus.registerObject(
        u"/org/freedesktop/FileManager1"_s, &manager, QDBusConnection::ExportAllSlots));
    EXPECT_TRUE(workspace.reveal(u"/tmp/Büro/a b.png"_s).wait());
    EXPECT_EQ(manager.shown, QStringList {u"file:///tmp/B%C3%BCro/a%20b.png"_s});
    bus.unregisterObject(u"/org/freedesktop/FileManager1"_s);
    bus.unregisterService(u"org.freedesktop.FileManager1"_s);
}

TEST_F(WorkspaceTest, opensTheFolderWhereNoFileManagerKnowsHowToReveal)
{
    Opener opener;
    EXPECT_TRUE(workspace.reveal(u"/tmp/Büro/a b.png"_s).wait());
    EXPECT_EQ(opener.opened, QList<QUrl> {QUrl::fromLocalFile(u"/tmp/Büro"_s)});
}

TEST_F(WorkspaceTest, handsAFileToThePortal)
{
    qDBusRegisterMetaType<QList<QDBusUnixFileDescriptor>>();
    {
        const Portal portal(Portal::done);
        EXPECT_TRUE(workspace.mail(file()).wait());
        EXPECT_EQ(portal.asked, QStringList {u"org.freedesktop.portal.Email.ComposeEmail"_s});
        EXPECT_EQ(portal.options[u"subject"_s], u"Büro 1"_s);
        EXPECT_EQ(portal.content, "pixels");
    }
    {
        const Portal portal(Portal::done);
        EXPECT_TRUE(workspace.openWith(file()).wait());
        EXPECT_EQ(portal.asked, QStringList {u"org.freedesktop.portal.OpenURI.OpenFile"_s});
        EXPECT_EQ(portal.options[u"ask"_s], true);
        EXPECT_EQ(portal.content, "pixels");
    }
    install(u"xdg-open"_s, 0);
    const Portal portal(Portal::cancels);
    EXPECT_TRUE(workspace.openWith(file()).wait().error().isCancelled());
    EXPECT_EQ(called(), QString()) << "the user wanted none";
}

TEST_F(WorkspaceTest, takesTheDesktopsHelperWhereThePortalCannot)
{
    install(u"xdg-email"_s, 0);
    install(u"xdg-open"_s, 0);
    EXPECT_TRUE(workspace.mail(file()).wait()) << "without a portal";
    EXPECT_EQ(called(), u"--attach %1 "_s.arg(file()));
    for (const uint response : {Portal::fails, Portal::dies}) {
        QFile::remove(desktop().home() + u"/called"_s);
        const Portal portal(response);
        EXPECT_TRUE(workspace.openWith(file()).wait());
        EXPECT_EQ(called(), file() + u' ') << response;
    }
}

TEST_F(WorkspaceTest, tellsWhatDidNotWork)
{
    using testing::HasSubstr;
    const auto failure
        = [](Result<void> result) { return result ? "" : result.error().message.toStdString(); };
    install(u"xdg-open"_s, 4);
    EXPECT_THAT(failure(workspace.openWith(file()).wait()), HasSubstr("No program"));
    EXPECT_THAT(failure(workspace.mail(u"/nowhere/a.png"_s).wait()), HasSubstr("“a.png”"));
    qputenv("PATH", "/nowhere");
    EXPECT_THAT(failure(workspace.mail(file()).wait()), HasSubstr("No mail program"));
}

#include "WorkspaceTest.moc"
