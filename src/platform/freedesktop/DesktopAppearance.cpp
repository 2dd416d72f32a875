// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/DesktopAppearance.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingReply>
#include <QFile>
#include <QGuiApplication>
#include <QPalette>
#include <QStandardPaths>

using namespace Qt::StringLiterals;
using AppearanceSources::PortalSettings;

namespace {

const QString portalService = u"org.freedesktop.portal.Desktop"_s;
const QString portalPath = u"/org/freedesktop/portal/desktop"_s;
const QString portalInterface = u"org.freedesktop.portal.Settings"_s;

const QString kdeFile = u"kdeglobals"_s;

/// Those of the running desktop; what another one has left behind does not count.
QStringList settingsFiles()
{
    const QString home
        = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u'/';
    const QStringList gtk {home + u"gtk-4.0/settings.ini"_s, home + u"gtk-3.0/settings.ini"_s};
    if (qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':').contains(u"KDE"_s))
        return QStringList {home + kdeFile} + gtk;
    return gtk;
}

PartialLook readFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const auto content = QString::fromUtf8(file.readAll());
    return path.endsWith(kdeFile) ? AppearanceSources::fromKdeGlobals(content)
                                  : AppearanceSources::fromGtkSettings(content);
}

/// Where the toolkit follows a desktop that says nothing elsewhere, its colours tell.
PartialLook fromToolkit()
{
    const auto palette = QGuiApplication::palette();
    PartialLook look;
    look.dark = palette.color(QPalette::Window).lightness()
        < palette.color(QPalette::WindowText).lightness();
    return look;
}

} // namespace

DesktopAppearance::DesktopAppearance(TextScale textScale)
    : m_textScale(textScale)
    , m_files(settingsFiles())
    , m_toolkit(fromToolkit())
{
    readFiles();
    update();
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, [this] {
        readFiles();
        update();
    });
    // A bus that is slow to answer does not hold up the start.
    QMetaObject::invokeMethod(this, &DesktopAppearance::askPortal, Qt::QueuedConnection);
}

void DesktopAppearance::askPortal()
{
    auto bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    qDBusRegisterMetaType<PortalSettings>();
    qRegisterMetaType<QDBusVariant>(); // Or the slot may not be found, without a word.
    bus.connect(portalService, portalPath, portalInterface, u"SettingChanged"_s, this,
        SLOT(takePortalSetting(QString, QString, QDBusVariant)));
    auto call
        = QDBusMessage::createMethodCall(portalService, portalPath, portalInterface, u"ReadAll"_s);
    call << QStringList {u"org.freedesktop.appearance"_s, u"org.gnome.desktop.interface"_s,
        u"org.kde.kdeglobals.*"_s};
    auto* reply = new QDBusPendingCallWatcher(bus.asyncCall(call), this);
    connect(
        reply, &QDBusPendingCallWatcher::finished, this, &DesktopAppearance::takePortalSettings);
}

void DesktopAppearance::takePortalSettings(QDBusPendingCallWatcher* watcher)
{
    const QDBusPendingReply<PortalSettings> reply = *watcher;
    watcher->deleteLater();
    if (reply.isError())
        return;
    m_portal = reply.value();
    update();
}

void DesktopAppearance::takePortalSetting(
    const QString& group, const QString& key, const QDBusVariant& value)
{
    m_portal[group][key] = value.variant();
    update();
}

void DesktopAppearance::readFiles()
{
    m_fromFiles = AppearanceSources::fromGtkTheme(qEnvironmentVariable("GTK_THEME"));
    for (const auto& path : std::as_const(m_files)) {
        m_fromFiles = m_fromFiles.orElse(readFile(path));
        if (QFile::exists(path))
            m_watcher.addPath(path); // Again: one that was replaced is watched no more.
    }
}

void DesktopAppearance::update()
{
    auto look
        = AppearanceSources::fromPortal(m_portal).orElse(m_fromFiles).orElse(m_toolkit).complete();
    if (m_textScale == TextScale::InScreenScale)
        look.textScale = 1;
    if (look == m_current)
        return;
    m_current = look;
    Q_EMIT changed();
}
