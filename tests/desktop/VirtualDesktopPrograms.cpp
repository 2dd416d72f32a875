// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/desktop/VirtualDesktop.h"

#include <QFile>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

QString logOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QFile::ReadOnly))
        return {};
    return QString::fromLocal8Bit(file.readAll().right(4096)).trimmed();
}

} // namespace

void VirtualDesktop::enter() const
{
    const QStringList before = QProcessEnvironment::systemEnvironment().keys();
    for (const QString& name : before)
        if (!m_environment.contains(name))
            qunsetenv(qPrintable(name));
    const QStringList now = m_environment.keys();
    for (const QString& name : now)
        qputenv(qPrintable(name), m_environment.value(name).toLocal8Bit());
}

QString VirtualDesktop::find(const QString& program) const
{
    const QStringList folders = m_environment.value(u"PATH"_s).split(u':');
    const QString found = QStandardPaths::findExecutable(program, folders);
    return found.isEmpty() ? program : found;
}

Result<std::unique_ptr<Client>> VirtualDesktop::launch(
    const QString& program, const QStringList& arguments) const
{
    auto client = std::make_unique<Client>(m_environment);
    if (const auto started = client->start(find(program), arguments); !started)
        return started.error();
    return client;
}

Result<VirtualDesktop::Finished> VirtualDesktop::run(
    const QString& program, const QStringList& arguments, std::chrono::milliseconds most) const
{
    const auto client = launch(program, arguments);
    if (!client)
        return client.error();
    if (!(*client)->waitForEnd(most))
        return Error::failed(u"%1 did not end within %2 ms."_s.arg(program).arg(most.count()));
    return Finished {(*client)->exitCode(), (*client)->output(), (*client)->errors()};
}

Result<void> VirtualDesktop::addMonitor(const Monitor& monitor)
{
    const bool isFirst = m_primary.isEmpty();
    if (isFirst)
        m_primary = monitor.name;
    const auto extent = [](int pixels) { // Pixels and, at 96 dpi, millimetres.
        return u"%1/%2"_s.arg(pixels).arg(pixels * 254 / 960);
    };
    const QRect& place = monitor.rectangle;
    const QString geometry = u"%1x%2+%3+%4"_s.arg(extent(place.width()), extent(place.height()))
                                 .arg(place.x())
                                 .arg(place.y());
    return changeScreens({u"--setmonitor"_s, (isFirst ? u"*"_s : QString()) + monitor.name,
        geometry, isFirst ? u"screen"_s : u"none"_s});
}

Result<void> VirtualDesktop::removeMonitor(const QString& name)
{
    if (name == m_primary)
        m_primary.clear();
    return changeScreens({u"--delmonitor"_s, name});
}

Result<void> VirtualDesktop::changeScreens(const QStringList& arguments)
{
    const auto done = run(u"xrandr"_s, arguments);
    if (!done)
        return done.error();
    if (done->exitCode != 0)
        return Error::failed(QString::fromLocal8Bit(done->errors));
    return {};
}

/// Logs go to files, as nobody reads pipes while a test computes. Standard output is read only for
/// the one line that some services begin with.
Result<VirtualDesktop::Service*> VirtualDesktop::startService(
    const QString& program, const QStringList& arguments)
{
    auto service = std::make_unique<Service>();
    service->name = program;
    service->log = path(program + ".log"_L1);
    service->process.setProcessEnvironment(m_environment);
    service->process.setStandardErrorFile(service->log);
    // The server removes its socket and its lock when it is asked to end.
    tieToParent(service->process, {.deathSignal = SIGTERM});
    if (const auto started = startProcess(service->process, find(program), arguments); !started)
        return started.error();
    m_services.push_back(std::move(service));
    return m_services.back().get();
}

Result<void> VirtualDesktop::waitUntilReady(
    Service& service, const std::function<bool()>& ready) const
{
    bool isReady = false;
    const bool decided = waitFor([&] {
        const bool over = service.process.state() == QProcess::NotRunning;
        isReady = ready();
        return isReady || over;
    });
    if (isReady)
        return {};
    return Error::failed(u"%1 %2: %3"_s.arg(service.name,
        decided ? u"ended at once"_s : u"did not get ready in time"_s, logOf(service.log)));
}

Result<QByteArray> VirtualDesktop::firstLine(Service& service) const
{
    const auto ready
        = waitUntilReady(service, [&service] { return service.process.canReadLine(); });
    if (!ready)
        return ready.error();
    return service.process.readLine().trimmed();
}

Result<void> VirtualDesktop::write(const QString& name, const QByteArray& content) const
{
    QFile file(path(name));
    if (file.open(QFile::WriteOnly) && file.write(content) == content.size() && file.flush())
        return {};
    return Error::failed(
        u"%1 could not be written: %2."_s.arg(file.fileName(), file.errorString()));
}
