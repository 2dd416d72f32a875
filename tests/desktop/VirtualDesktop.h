// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/desktop/Client.h"
#include "tests/desktop/DesktopOptions.h"
#include "tests/desktop/Janitor.h"
#include "tests/desktop/XDisplay.h"

#include <QProcessEnvironment>

/// A desktop of its own on a server without a screen: Xvfb, session bus, window manager, and as
/// asked compositor and tray, with a home folder that is empty at first and gone at the end.
/// Nothing on the bus is started by asking for it. Needs a QCoreApplication; lives on the main
/// thread.
class VirtualDesktop final : public XDisplay {
public:
    /// Returns when all of it is ready for clients; fails with the log of what did not start.
    static Result<std::unique_ptr<VirtualDesktop>> start(const DesktopOptions& options = {});
    ~VirtualDesktop() override { stop(); }

    /// Whether there is an Xvfb on this machine; without one no test of a desktop can run.
    static bool isInstalled();

    /// Ends everything that was started in it, newest first, and removes its home.
    void stop();

    /// What a program needs to run in it. Programs are also looked for beside the running one.
    QProcessEnvironment environment() const { return m_environment; }
    QString home() const { return m_environment.value(QStringLiteral("HOME")); }

    /// Makes that environment the one of this process as well.
    void enter() const;

    struct Finished {
        int exitCode; ///< 128 + the signal if one ended it.
        QByteArray output;
        QByteArray errors;
    };

    /// Runs a program in it to its end; fails if it does not start or does not end in time.
    Result<Finished> run(const QString& program, const QStringList& arguments = {},
        std::chrono::milliseconds most = patience) const;

    /// Starts a program in it.
    Result<std::unique_ptr<Client>> launch(
        const QString& program, const QStringList& arguments = {}) const;

    /// Adds a monitor. The first one takes the server's only output and becomes primary.
    Result<void> addMonitor(const Monitor& monitor);
    Result<void> removeMonitor(const QString& name);

    /// The full path of a program as it is found in the desktop's PATH; as given if it is not.
    QString find(const QString& program) const;

private:
    struct Service {
        QString name;
        QString log; ///< Path of the file that has what it said.
        QProcess process;
    };

    explicit VirtualDesktop(DesktopOptions options);

    Result<void> startAll();
    Result<void> changeScreens(const QStringList& arguments);
    Result<void> findPrograms();
    Result<void> makeHome();
    Result<void> startServer();
    Result<void> startBus();
    Result<void> startWindowManager();
    Result<void> startCompositor();
    Result<void> startTray();

    Result<Service*> startService(const QString& program, const QStringList& arguments);
    Result<void> waitUntilReady(Service& service, const std::function<bool()>& ready) const;
    Result<QByteArray> firstLine(Service& service) const;
    Result<void> write(const QString& name, const QByteArray& content) const;
    QString path(const QString& name) const { return m_directory + u'/' + name; }

    DesktopOptions m_options;
    QString m_directory;
    Janitor m_janitor;
    QProcessEnvironment m_environment;
    QString m_primary; ///< The monitor that has the output.
    std::vector<std::unique_ptr<Service>> m_services;
};
