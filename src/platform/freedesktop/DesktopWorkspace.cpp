// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/DesktopWorkspace.h"

#include "base/Words.h"
#include "platform/freedesktop/Autostart.h"

#include "platform/freedesktop/PortalRequest.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDesktopServices>
#include <QFileInfo>
#include <QProcess>
#include <QUrl>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using Answer = Pending<void>::Answer;

/// An answer that several callbacks may hold, of which one gives it.
using SharedAnswer = std::shared_ptr<Answer>;

std::pair<Pending<void>, SharedAnswer> ask()
{
    auto [pending, answer] = Pending<void>::ask();
    return {std::move(pending), std::make_shared<Answer>(std::move(answer))};
}

Result<void> openByAssociation(const QString& fileOrFolder)
{
    if (QDesktopServices::openUrl(QUrl::fromLocalFile(fileOrFolder)))
        return {};
    return Error::failed(Words::tr("There is no program to show “%1” with.")
                             .arg(QFileInfo(fileOrFolder).fileName()));
}

/// Runs one of the desktop's helpers, which start the program proper and end. That program may live
/// on in the helper's process, so this one's end does not end it.
void runHelper(const QString& program, const QStringList& arguments, const Error& whenItFails,
    const SharedAnswer& answer)
{
    auto* process = new QProcess;
    QObject::connect(process, &QProcess::errorOccurred, qApp, [=](QProcess::ProcessError error) {
        if (error != QProcess::FailedToStart)
            return;
        (*answer)(whenItFails);
        process->deleteLater();
    });
    QObject::connect(process, &QProcess::finished, qApp, [=](int code) {
        (*answer)(code == 0 ? Result<void>() : Result<void>(whenItFails));
        process->deleteLater();
    });
    process->setStandardInputFile(QProcess::nullDevice());
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setStandardErrorFile(QProcess::nullDevice());
    process->start(program, arguments);
}

/// Asks the portal, and a helper where the portal cannot.
Pending<void> askPortal(const PortalRequest::Call& call, const QString& helper,
    const QStringList& arguments, const Error& whenItFails)
{
    auto [pending, answer] = ask();
    PortalRequest::send(call, [=, answer = answer](const Result<void>& result) {
        if (result || result.error().isCancelled())
            (*answer)(result);
        else
            runHelper(helper, arguments, whenItFails, answer);
    });
    return std::move(pending);
}

Error missing(const QString& path)
{
    return Error::failed(
        Words::tr("The file “%1” cannot be read.").arg(QFileInfo(path).fileName()));
}

/// Where the desktops keep what programs may do.
struct Settings {
    QString desktop; ///< As in XDG_CURRENT_DESKTOP.
    QString program;
    QStringList arguments;
};

const QList<Settings> settingsPrograms {
    {u"GNOME"_s, u"gnome-control-center"_s, {u"applications"_s}},
    {u"KDE"_s, u"systemsettings"_s, {}},
    {u"XFCE"_s, u"xfce4-settings-manager"_s, {}},
    {u"Cinnamon"_s, u"cinnamon-settings"_s, {}},
    {u"MATE"_s, u"mate-control-center"_s, {}},
};

} // namespace

Pending<void> DesktopWorkspace::reveal(const QString& path)
{
    const auto bus = QDBusConnection::sessionBus();
    const QString folder = QFileInfo(path).absolutePath();
    if (!bus.isConnected())
        return open(folder);
    // https://www.freedesktop.org/wiki/Specifications/file-manager-interface
    auto call = QDBusMessage::createMethodCall(u"org.freedesktop.FileManager1"_s,
        u"/org/freedesktop/FileManager1"_s, u"org.freedesktop.FileManager1"_s, u"ShowItems"_s);
    const QString url = QString::fromUtf8(QUrl::fromLocalFile(path).toEncoded());
    call << QStringList {url} << QString();
    auto [pending, answer] = ask();
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), qApp);
    QObject::connect(
        watcher, &QDBusPendingCallWatcher::finished, qApp, [watcher, folder, answer = answer] {
            const QDBusPendingReply<> reply = *watcher;
            watcher->deleteLater();
            // An error: no file manager that knows the interface.
            (*answer)(reply.isError() ? openByAssociation(folder) : Result<void>());
        });
    return std::move(pending);
}

Pending<void> DesktopWorkspace::open(const QString& fileOrFolder)
{
    return Pending<void>::answered(openByAssociation(fileOrFolder));
}

Pending<void> DesktopWorkspace::mail(const QString& path)
{
    const auto file = descriptorOf(path);
    if (!file.isValid())
        return Pending<void>::answered(missing(path));
    qDBusRegisterMetaType<QList<QDBusUnixFileDescriptor>>();
    const QVariantMap options {{u"subject"_s, QFileInfo(path).completeBaseName()},
        {u"attachment_fds"_s, QVariant::fromValue(QList {file})}};
    return askPortal({u"org.freedesktop.portal.Email"_s, u"ComposeEmail"_s, {QString()}, options},
        u"xdg-email"_s, {u"--attach"_s, path},
        Error::failed(Words::tr("No mail program could be started.")));
}

Pending<void> DesktopWorkspace::openWith(const QString& path)
{
    const auto file = descriptorOf(path);
    if (!file.isValid())
        return Pending<void>::answered(missing(path));
    return askPortal({u"org.freedesktop.portal.OpenURI"_s, u"OpenFile"_s,
                         {QString(), QVariant::fromValue(file)}, {{u"ask"_s, true}}},
        u"xdg-open"_s, {path},
        Error::failed(Words::tr("No program could be started to open the file with.")));
}

Pending<void> DesktopWorkspace::openPermissionSettings()
{
    const auto desktops = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':');
    const auto ours = std::ranges::find_if(settingsPrograms,
        [&desktops](const Settings& each) { return desktops.contains(each.desktop); });
    if (ours != settingsPrograms.end() && QProcess::startDetached(ours->program, ours->arguments))
        return Pending<void>::answered({});
    return Pending<void>::answered(
        Error::failed(Words::tr("The settings of this desktop could not be opened.")));
}

bool DesktopWorkspace::startsAtLogin() const
{
    return Autostart::isOn(Autostart::userFolder());
}

Result<void> DesktopWorkspace::setStartsAtLogin(bool starts)
{
    return Autostart::set(Autostart::userFolder(), QCoreApplication::applicationFilePath(), starts);
}

void DesktopWorkspace::relaunch()
{
    QProcess::startDetached(QCoreApplication::applicationFilePath(), {u"--replace"_s});
}
