// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/DesktopWorkspace.h"
#include "tests/desktop/DesktopTest.h"

#include <QDBusConnection>
#include <QObject>

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
}

#include "WorkspaceTest.moc"
