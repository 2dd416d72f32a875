// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/DesktopWorkspace.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDesktopServices>
#include <QFileInfo>
#include <QProcess>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

void openByAssociation(const QString& fileOrFolder)
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(fileOrFolder));
}

} // namespace

void DesktopWorkspace::reveal(const QString& path)
{
    const auto bus = QDBusConnection::sessionBus();
    const QString folder = QFileInfo(path).absolutePath();
    if (!bus.isConnected()) {
        openByAssociation(folder);
        return;
    }
    // https://www.freedesktop.org/wiki/Specifications/file-manager-interface
    auto call = QDBusMessage::createMethodCall(u"org.freedesktop.FileManager1"_s,
        u"/org/freedesktop/FileManager1"_s, u"org.freedesktop.FileManager1"_s, u"ShowItems"_s);
    const QString url = QString::fromUtf8(QUrl::fromLocalFile(path).toEncoded());
    call << QStringList {url} << QString();
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), qApp);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, qApp, [watcher, folder] {
        const QDBusPendingReply<> reply = *watcher;
        watcher->deleteLater();
        if (reply.isError()) // No file manager that knows the interface.
            openByAssociation(folder);
    });
}

void DesktopWorkspace::open(const QString& fileOrFolder)
{
    openByAssociation(fileOrFolder);
}

void DesktopWorkspace::relaunch()
{
    QProcess::startDetached(QCoreApplication::applicationFilePath(), {u"--replace"_s});
}
