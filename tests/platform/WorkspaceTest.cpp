// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/DesktopWorkspace.h"
#include "tests/desktop/DesktopTest.h"

#include <QDBusConnection>
#include <QDesktopServices>
#include <QObject>
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

using WorkspaceTest = DesktopTest<>;

} // namespace

TEST_F(WorkspaceTest, revealsAFileInTheFileManager)
{
    FileManager manager;
    auto bus = QDBusConnection::sessionBus();
    ASSERT_TRUE(bus.registerService(u"org.freedesktop.FileManager1"_s));
    ASSERT_TRUE(bus.registerObject(
        u"/org/freedesktop/FileManager1"_s, &manager, QDBusConnection::ExportAllSlots));
    DesktopWorkspace().reveal(u"/tmp/Büro/a b.png"_s);
    EXPECT_TRUE(waitFor([&] { return !manager.shown.isEmpty(); }));
    EXPECT_EQ(manager.shown, QStringList {u"file:///tmp/B%C3%BCro/a%20b.png"_s});
    bus.unregisterObject(u"/org/freedesktop/FileManager1"_s);
    bus.unregisterService(u"org.freedesktop.FileManager1"_s);
}

TEST_F(WorkspaceTest, opensTheFolderWhereNoFileManagerKnowsHowToReveal)
{
    Opener opener;
    auto workspace = std::make_unique<DesktopWorkspace>();
    workspace->reveal(u"/tmp/Büro/a b.png"_s);
    workspace.reset(); // The answer comes later.
    EXPECT_TRUE(waitFor([&] { return !opener.opened.isEmpty(); }));
    EXPECT_EQ(opener.opened, QList<QUrl> {QUrl::fromLocalFile(u"/tmp/Büro"_s)});
}

#include "WorkspaceTest.moc"
