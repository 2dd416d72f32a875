// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/desktop/VirtualDesktop.h"

#include "platform/x11/Reply.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QUrl>

#include <xcb/composite.h>

using namespace Qt::StringLiterals;

namespace {

/// A session bus that starts nothing by itself, so that no portal, accessibility bus or settings
/// daemon of the machine slips into a test.
constexpr const char* busConfiguration = R"(<!DOCTYPE busconfig PUBLIC
 "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <keep_umask/>
  <listen>unix:path=%1</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
)";

/// No clock: what ticks spoils comparisons of pixels.
constexpr const char* trayConfiguration = R"(rounded = 0
border_width = 0
background_color = #222222 100
panel_items = TS
panel_size = 100% 30
panel_position = bottom center horizontal
panel_monitor = primary
panel_background_id = 1
systray_padding = 4 2 4
systray_icon_size = 24
)";

QProcessEnvironment cleanEnvironment()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const QStringList names = environment.keys();
    for (const QString& name : names)
        if (name.startsWith("QT_"_L1) || name.startsWith("GTK_"_L1) || name.startsWith("XDG_"_L1))
            if (name != "XDG_DATA_DIRS"_L1 && name != "XDG_CONFIG_DIRS"_L1)
                environment.remove(name);
    for (const char* name : {"WAYLAND_DISPLAY", "SESSION_MANAGER", "XAUTHORITY", "XMODIFIERS",
             "DESKTOP_STARTUP_ID", "DBUS_STARTER_ADDRESS", "DBUS_STARTER_BUS_TYPE"})
        environment.remove(QLatin1String(name));
    return environment;
}

QString scaleFactors(const std::vector<Monitor>& monitors)
{
    QStringList factors;
    bool scaled = false;
    for (const Monitor& monitor : monitors) {
        factors += monitor.name + u'=' + QString::number(monitor.scale);
        scaled |= monitor.scale != 1;
    }
    return scaled ? factors.join(u';') : QString();
}

QSize coveredBy(const std::vector<Monitor>& monitors)
{
    QRect all;
    for (const Monitor& monitor : monitors)
        all |= monitor.rectangle;
    return all.isEmpty() ? QSize(1280, 800) : QSize(all.right() + 1, all.bottom() + 1);
}

} // namespace

VirtualDesktop::VirtualDesktop(DesktopOptions options)
    : m_options(std::move(options))
{
    if (m_options.size.isEmpty())
        m_options.size = coveredBy(m_options.monitors);
}

bool VirtualDesktop::isInstalled()
{
    return !QStandardPaths::findExecutable(u"Xvfb"_s).isEmpty();
}

Result<std::unique_ptr<VirtualDesktop>> VirtualDesktop::start(const DesktopOptions& options)
{
    std::unique_ptr<VirtualDesktop> desktop(new VirtualDesktop(options));
    if (const auto started = desktop->startAll(); !started)
        return started.error();
    return desktop;
}

Result<void> VirtualDesktop::startAll()
{
    for (const auto step :
        {&VirtualDesktop::makeHome, &VirtualDesktop::findPrograms, &VirtualDesktop::startServer,
            &VirtualDesktop::startBus, &VirtualDesktop::startWindowManager,
            &VirtualDesktop::startCompositor, &VirtualDesktop::startTray})
        if (const auto done = (this->*step)(); !done)
            return done;
    return {};
}

Result<void> VirtualDesktop::findPrograms()
{
    QStringList programs {u"Xvfb"_s, u"dbus-daemon"_s};
    if (m_options.windowManager)
        programs += u"openbox"_s;
    if (m_options.compositor == Compositor::Picom)
        programs += u"picom"_s;
    if (m_options.tray)
        programs += u"tint2"_s;
    QStringList missing;
    for (const QString& program : programs)
        if (!find(program).startsWith(u'/'))
            missing += program;
    if (missing.isEmpty())
        return {};
    return Error::failed(u"A virtual desktop needs programs that are not installed: %1."_s.arg(
        missing.join(", "_L1)));
}

Result<void> VirtualDesktop::makeHome()
{
    QTemporaryDir directory(QDir::tempPath() + "/pixmallow-desktop-XXXXXX"_L1);
    directory.setAutoRemove(false);
    if (!directory.isValid())
        return Error::failed(
            u"No folder for a virtual desktop: %1."_s.arg(directory.errorString()));
    m_directory = directory.path();
    if (const auto guarded = m_janitor.guard(m_directory); !guarded)
        return guarded;

    m_environment = cleanEnvironment();
    const std::pair<QString, QString> folders[] = {
        {u"HOME"_s, u"home"_s},
        {u"XDG_CONFIG_HOME"_s, u"home/.config"_s},
        {u"XDG_DATA_HOME"_s, u"home/.local/share"_s},
        {u"XDG_STATE_HOME"_s, u"home/.local/state"_s},
        {u"XDG_CACHE_HOME"_s, u"home/.cache"_s},
        {u"XDG_RUNTIME_DIR"_s, u"runtime"_s},
    };
    for (const auto& [variable, folder] : folders) {
        if (!QDir().mkpath(path(folder)))
            return Error::failed(u"The folder %1 could not be made."_s.arg(path(folder)));
        m_environment.insert(variable, path(folder));
    }
    QFile::setPermissions(
        path(u"runtime"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);

    m_environment.insert(u"XDG_SESSION_TYPE"_s, u"x11"_s);
    m_environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
    m_environment.insert(
        u"PATH"_s, QCoreApplication::applicationDirPath() + u':' + m_environment.value(u"PATH"_s));
    if (m_options.scale != 1)
        m_environment.insert(u"QT_SCALE_FACTOR"_s, QString::number(m_options.scale));
    if (const QString factors = scaleFactors(m_options.monitors); !factors.isEmpty())
        m_environment.insert(u"QT_SCREEN_SCALE_FACTORS"_s, factors);
    return {};
}

Result<void> VirtualDesktop::startServer()
{
    constexpr int most = 32767; // Coordinates of the protocol; Xvfb itself takes more in silence.
    if (m_options.size.width() > most || m_options.size.height() > most)
        return Error::failed(u"A virtual desktop has at most %1 pixels each way."_s.arg(most));
    const QString screen = u"%1x%2x24"_s.arg(m_options.size.width()).arg(m_options.size.height());
    const auto server = startService(u"Xvfb"_s,
        {u"-displayfd"_s, u"1"_s, u"-screen"_s, u"0"_s, screen, u"-dpi"_s, u"96"_s, u"-nolisten"_s,
            u"tcp"_s, u"-noreset"_s, u"-s"_s, u"0"_s});
    if (!server)
        return server.error();
    const auto number = firstLine(**server);
    if (!number)
        return number.error();
    if (const auto written = write(u"socket"_s, "/tmp/.X11-unix/X" + *number); !written)
        return written;
    m_environment.insert(u"DISPLAY"_s, u':' + QString::fromLatin1(*number));
    if (const auto connected = connect(m_environment.value(u"DISPLAY"_s)); !connected)
        return connected;
    for (const Monitor& monitor : m_options.monitors)
        if (const auto added = addMonitor(monitor); !added)
            return added;
    return {};
}

Result<void> VirtualDesktop::startBus()
{
    const QByteArray socket = QUrl::toPercentEncoding(path(u"runtime/bus"_s), "/");
    const QString configuration
        = QString::fromLatin1(busConfiguration).arg(QString::fromLatin1(socket));
    if (const auto written = write(u"bus.conf"_s, configuration.toLatin1()); !written)
        return written;
    const auto bus = startService(u"dbus-daemon"_s,
        {u"--config-file="_s + path(u"bus.conf"_s), u"--nofork"_s, u"--nosyslog"_s,
            u"--print-address=1"_s});
    if (!bus)
        return bus.error();
    const auto address = firstLine(**bus);
    if (!address)
        return address.error();
    m_environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, QString::fromLatin1(*address));
    return {};
}

Result<void> VirtualDesktop::startWindowManager()
{
    if (!m_options.windowManager)
        return {};
    // Its window of _NET_SUPPORTING_WM_CHECK comes too early: a client that maps then is taken for
    // one that was there before and gets no focus. This hook runs when it is ready.
    const QString ready = path(u"window-manager-ready"_s);
    const auto manager = startService(
        u"openbox"_s, {u"--sm-disable"_s, u"--startup"_s, u"touch '%1'"_s.arg(ready)});
    if (!manager)
        return manager.error();
    return waitUntilReady(**manager, [ready] { return QFile::exists(ready); });
}

Result<void> VirtualDesktop::startCompositor()
{
    if (m_options.compositor == Compositor::None)
        return {};
    const auto compositor
        = startService(u"picom"_s, {u"--config"_s, u"/dev/null"_s, u"--backend"_s, u"xrender"_s});
    if (!compositor)
        return compositor.error();

    // It owns the selection before it takes over the windows; then they have pixmaps to name.
    xcb_connection_t* const server = connection();
    owned(xcb_composite_query_version_reply(
        server, xcb_composite_query_version(server, 0, 4), nullptr));
    const xcb_window_t probe = xcb_generate_id(server);
    const quint32 overrideRedirect = 1;
    xcb_create_window(server, XCB_COPY_FROM_PARENT, probe, screen().root, -10, -10, 1, 1, 0,
        XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT,
        &overrideRedirect);
    xcb_map_window(server, probe);
    const auto ready = waitUntilReady(**compositor, [this, server, probe] {
        const xcb_pixmap_t pixmap = xcb_generate_id(server);
        const auto named = xcb_composite_name_window_pixmap_checked(server, probe, pixmap);
        if (owned(xcb_request_check(server, named)))
            return false;
        xcb_free_pixmap(server, pixmap);
        return isOwned("_NET_WM_CM_S0");
    });
    xcb_destroy_window(server, probe);
    xcb_flush(server);
    return ready;
}

Result<void> VirtualDesktop::startTray()
{
    if (!m_options.tray)
        return {};
    if (const auto written = write(u"tint2rc"_s, trayConfiguration); !written)
        return written;
    const auto tray = startService(u"tint2"_s, {u"-c"_s, path(u"tint2rc"_s)});
    if (!tray)
        return tray.error();
    return waitUntilReady(**tray, [this] { return isOwned("_NET_SYSTEM_TRAY_S0"); });
}

void VirtualDesktop::stop()
{
    disconnect();
    while (!m_services.empty()) {
        endProcess(m_services.back()->process);
        m_services.pop_back();
    }
    m_janitor.finish();
}
