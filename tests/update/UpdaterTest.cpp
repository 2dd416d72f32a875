// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "update/Updater.h"

#include "platform/fake/FakePlatform.h"
#include "tests/TestFiles.h"
#include "tests/update/TestServer.h"
#include "update/UpdatePanel.h"

#include <QApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QByteArray program(300'000, 'p');

QString digestOf(const QByteArray& content)
{
    return QString::fromLatin1(
        QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex());
}

class UpdaterTest : public testing::Test {
protected:
    UpdaterTest()
    {
        QObject::connect(&updater, &Updater::panelWanted,
            [this](const UpdateInfo& info) { shown << info.version; });
    }

    void publish(const QString& version, const QByteArray& digest = digestOf(program).toUtf8())
    {
        const QJsonObject build {{u"version"_s, version}, {u"url"_s, server.address(u"/program"_s)},
            {u"sha256"_s, QString::fromUtf8(digest)}};
        server.pages["/feed"] = {QJsonDocument(QJsonObject {{u"mac"_s, build}}).toJson()};
        server.pages["/program"] = {program};
    }

    void check(bool manual = true)
    {
        updater.check(manual);
        EXPECT_EQ(updater.status(), u"Checking…");
        waitForCheck();
    }
    void waitForCheck()
    {
        while (updater.isChecking())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    /// @return what was said in the end
    QString install(const UpdateInfo& info)
    {
        QStringList stages;
        const auto done
            = updater.install(info, [&](const QString& stage) { stages << stage; }).wait();
        EXPECT_EQ(stages.value(0), u"Downloading…");
        EXPECT_EQ(bool(done), stages.last().startsWith(u"Opened"));
        EXPECT_EQ(bool(done), workspace.opened == folder + u"/Pixmallow-2.0.dmg"_s);
        EXPECT_EQ(QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
            done ? QStringList {u"Pixmallow-2.0.dmg"_s} : QStringList());
        return stages.last();
    }

    QTemporaryDir home;
    const QString folder = home.filePath(u"Downloads"_s);
    Prefs prefs {Folders {.configuration = home.path()}, Prefs::Watch::Nothing};
    FakeWorkspace workspace;
    PlatformWords words;
    TestServer server;
    QDateTime now {QDate(2026, 3, 4), QTime(5, 6, 7), Qt::UTC};
    std::function<void()> later; ///< What was to be done some seconds after the start.
    Updater updater {{prefs, workspace, words, folder,
        {server.address(u"/feed"_s), u"https://pixmallow.example"_s, u"mac"_s, u".dmg"_s, u"Mac"_s,
            u"1.3.0"_s},
        [this] { return now; },
        [this](std::chrono::milliseconds, QObject*, std::function<void()> call) {
            later = std::move(call);
        }}};
    QStringList shown; ///< Versions, in panels.
};

} // namespace

TEST_F(UpdaterTest, tellsOfANewVersion)
{
    publish(u"2.0"_s);
    check();
    EXPECT_EQ(updater.status(), u"Pixmallow 2.0 is available.");
    EXPECT_EQ(updater.available()->version, u"2.0");
    EXPECT_EQ(shown, QStringList {u"2.0"_s});
    EXPECT_EQ(prefs.get(Prefs::keys.lastUpdateCheck), now);
    EXPECT_TRUE(server.requests.first().contains(
        "\r\nUser-Agent: Pixmallow/1.3.0 (Mac; +https://pixmallow.example)\r\n"));

    publish(u"1.3"_s);
    check();
    EXPECT_EQ(updater.status(), u"You're up to date — Pixmallow 1.3.0 is the latest version.");
    EXPECT_FALSE(updater.available());
    server.pages["/feed"].status = 500; // Its body counts all the same.
    publish(u"2.0"_s);
    server.pages["/feed"].status = 404;
    check();
    EXPECT_TRUE(updater.available());
}

TEST_F(UpdaterTest, aFailedCheckChangesNothingButTheStatus)
{
    publish(u"2.0"_s);
    check();
    now = now.addDays(3);
    const auto before = prefs.get(Prefs::keys.lastUpdateCheck);
    server.pages["/elsewhere"] = server.pages["/feed"];
    const TestServer::Page good = server.pages["/feed"];
    const TestServer::Page pages[] {{"<html>"}, {}, {"[]"}, {QByteArray(2 << 20, ' ')},
        {good.body, 200, {}, 20}, {{}, 302, "http://pixmallow.example/feed"},
        {{}, 302, "HTTP://localhost/feed"}, {{}, 302, "/feed"}, {{}, 302, "file:///etc/passwd"}};
    for (const auto& page : pages) {
        server.pages["/feed"] = page;
        check();
        EXPECT_TRUE(updater.status().startsWith(u"Couldn't check for updates: "_s));
        EXPECT_GT(updater.status().size(), 30) << qPrintable(updater.status());
        EXPECT_EQ(updater.available()->version, u"2.0");
        EXPECT_EQ(prefs.get(Prefs::keys.lastUpdateCheck), before);
    }
    server.pages["/feed"] = {{}, 302, "/elsewhere"};
    check();
    EXPECT_EQ(updater.status(), u"Pixmallow 2.0 is available.");
    server.close();
    check();
    EXPECT_TRUE(updater.status().startsWith(u"Couldn't check for updates: Connection refused"_s))
        << qPrintable(updater.status());
}

TEST_F(UpdaterTest, looksByItselfOnceADay)
{
    publish(u"2.0"_s);
    updater.start();
    updater.skip(u"2.0"_s);
    later();
    waitForCheck();
    EXPECT_EQ(server.requests.size(), 1);
    EXPECT_TRUE(updater.available());
    EXPECT_TRUE(shown.isEmpty()) << "that version was to be skipped";
    later();
    EXPECT_FALSE(updater.isChecking()) << "not due";
    now = now.addDays(1);
    prefs.set(Prefs::keys.autoUpdate, false);
    later();
    EXPECT_FALSE(updater.isChecking()) << "not wanted";
    check(true);
    EXPECT_EQ(shown, QStringList {u"2.0"_s}) << "asked for";
    prefs.set(Prefs::keys.autoUpdate, true);
    prefs.set(Prefs::keys.skipVersion, u"1.9"_s);
    now = now.addDays(1);
    later();
    updater.check(true); // One at a time.
    waitForCheck();
    EXPECT_EQ(server.requests.size(), 3);
    EXPECT_EQ(shown.size(), 2);
}

TEST_F(UpdaterTest, opensWhatHasTheRightChecksum)
{
    publish(u"2.0"_s);
    check();
    const UpdateInfo info = *updater.available();
    QDir().mkpath(folder);
    put(folder + u"/Pixmallow-2.0.dmg"_s, "an older download");
    EXPECT_EQ(install(info),
        u"Opened Pixmallow-2.0.dmg — quit Pixmallow, drag the new one into Applications "
        "(Replace), then open it again.");
    EXPECT_EQ(contentOf(folder + u"/Pixmallow-2.0.dmg"_s), program);
}

TEST_F(UpdaterTest, opensNothingElse)
{
    publish(u"2.0"_s, QByteArray(64, 'a'));
    check();
    const UpdateInfo wrong = *updater.available();
    EXPECT_EQ(install(wrong),
        u"Update failed: the download didn't match its checksum, so it wasn't opened. Try again "
        "later.");
    publish(u"2.0"_s);
    check();
    const UpdateInfo info = *updater.available();
    server.pages["/program"].status = 503;
    server.pages["/program"].body = "busy";
    EXPECT_TRUE(install(info).contains(u"checksum"));
    server.pages["/program"] = {program, 200, {}, 1000};
    EXPECT_TRUE(install(info).startsWith(u"Update failed: "_s));
    server.pages["/program"] = {{}, 301, "http://pixmallow.example/program"};
    EXPECT_EQ(install(info), u"Update failed: updates must use HTTPS");
    EXPECT_TRUE(workspace.opened.isEmpty());
}

TEST_F(UpdaterTest, saysThatTheDiskIsFull)
{
    publish(u"2.0"_s);
    check();
    QDir().mkpath(folder);
    const QString path = folder + u"/Pixmallow-2.0.dmg"_s;
    ASSERT_TRUE(QFile::link(u"/dev/full"_s, path));
    QString said;
    EXPECT_FALSE(
        updater.install(*updater.available(), [&](const QString& stage) { said = stage; }).wait());
    EXPECT_TRUE(said.startsWith(u"Update failed: "_s) && said.contains(u"No space"_s))
        << qPrintable(said);
    EXPECT_TRUE(workspace.opened.isEmpty());
}

TEST_F(UpdaterTest, aDownloadCanBeCancelled)
{
    publish(u"2.0"_s);
    check();
    server.pages["/program"] = {program, 200, {}, 100'000, true};
    QObject::connect(&updater, &Updater::received, [this](qint64 bytes, qint64 total) {
        EXPECT_EQ(total, program.size());
        if (bytes > 0)
            QMetaObject::invokeMethod(
                &updater, [this] { updater.cancelInstall(); }, Qt::QueuedConnection);
    });
    QStringList stages;
    const auto done
        = updater.install(*updater.available(), [&](const QString& stage) { stages << stage; })
              .wait();
    ASSERT_FALSE(done);
    EXPECT_TRUE(done.error().isCancelled());
    EXPECT_EQ(stages, QStringList {u"Downloading…"_s});
    EXPECT_TRUE(QDir(folder).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
}

TEST_F(UpdaterTest, itsPanelSkipsInstallsAndCancels)
{
    FakeAppearance appearance;
    Skins skins(prefs, appearance);
    const Themes themes(skins, appearance);
    auto panel = std::make_unique<UpdatePanel>(themes, updater);
    const auto view = []() -> UpdateView* {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        for (QWidget* window : QApplication::topLevelWidgets())
            if (auto* found = qobject_cast<UpdateView*>(window))
                return found;
        return nullptr;
    };
    publish(u"2.0"_s);
    check();
    ASSERT_TRUE(view() && view()->isVisible());
    Q_EMIT view()->skipWanted();
    EXPECT_FALSE(view());
    EXPECT_EQ(prefs.get(Prefs::keys.skipVersion), u"2.0");

    check();
    server.pages["/program"] = {program, 200, {}, 1000, true};
    Q_EMIT view()->installWanted();
    updater.check(true); // What it finds does not replace the panel that is at work.
    waitForCheck();
    Q_EMIT view()->laterWanted();
    QCoreApplication::processEvents();
    ASSERT_TRUE(view()) << "only the download is cancelled";
    server.pages["/program"] = {program};
    Q_EMIT view()->installWanted();
    while (workspace.opened.isEmpty())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    view()->close();
    EXPECT_FALSE(view());

    workspace.opened.clear();
    check();
    Q_EMIT view()->installWanted();
    while (workspace.opened.isEmpty())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    panel.reset(); // Before it is told how that ended.
    QCoreApplication::processEvents();
}

TEST_F(UpdaterTest, believesOnlyCertificatesThatItKnows)
{
    const auto configuration = TestServer::selfSigned(home.path());
    if (configuration.isNull())
        GTEST_SKIP() << "needs openssl to sign a certificate";
    TestServer secured(configuration);
    secured.pages["/feed"] = {"{}"};
    server.pages["/feed"] = {{}, 302, secured.address(u"/feed"_s).toUtf8()};
    check();
    EXPECT_TRUE(updater.status().contains(u"certificate"_s)) << qPrintable(updater.status());

    const QSslConfiguration usual = QSslConfiguration::defaultConfiguration();
    QSslConfiguration trusting = usual;
    trusting.addCaCertificate(configuration.localCertificate());
    QSslConfiguration::setDefaultConfiguration(trusting);
    check();
    QSslConfiguration::setDefaultConfiguration(usual);
    EXPECT_TRUE(updater.status().startsWith(u"You're up to date"_s))
        << qPrintable(updater.status());
}
