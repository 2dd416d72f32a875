// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "capture/ShotTaker.h"
#include "overlay/RegionOverlay.h"
#include "platform/DesktopPlatform.h"

#include <QCoro/QCoroTask>
#include <QGuiApplication>
#include <QSocketNotifier>
#include <QWindow>

#include <cstdio>
#include <iostream>

using namespace Qt::StringLiterals;

namespace {

void tell(const QString& line)
{
    std::puts(line.toUtf8().constData());
    std::fflush(stdout);
}

class Demo final {
public:
    Demo(DesktopPlatform& platform, const Prefs& prefs, QString file)
        : m_platform(platform)
        , m_taker(*platform.displays, *platform.capture, prefs)
        , m_pool(*platform.surfaces)
        , m_file(std::move(file))
    {
        QObject::connect(&m_input, &QSocketNotifier::activated, [this] { read(); });
    }

private:
    void read()
    {
        std::string purpose;
        if (std::getline(std::cin, purpose))
            take(QString::fromStdString(purpose));
        else
            QCoreApplication::quit();
    }

    QCoro::Task<> take(QString purpose)
    {
        m_input.setEnabled(false);
        const ShotTaker::SelectRegion select
            = [this](RegionQuestion question) { return ask(question); };
        const auto shot = co_await m_taker.region(select, purpose, QString());
        if (shot && shot->image.save(m_file, "png"))
            tell(u"taken %1x%2"_s.arg(shot->image.width()).arg(shot->image.height()));
        else
            tell(!shot && shot.error().isCancelled() ? u"cancelled"_s : u"failed"_s);
        m_input.setEnabled(true);
    }

    Pending<RegionResult> ask(const RegionQuestion& question)
    {
        m_overlay = std::make_unique<RegionOverlay>(m_pool, *m_platform.displays, OverlayStyle {});
        auto answer = m_overlay->select(question);
        tell(u"shown"_s);
        return answer;
    }

    DesktopPlatform& m_platform;
    ShotTaker m_taker;
    OverlayPool m_pool;
    std::unique_ptr<RegionOverlay> m_overlay;
    QSocketNotifier m_input {0, QSocketNotifier::Read};
    QString m_file;
};

} // namespace

// usage: overlay-demo FILE [--window]
// For each line of standard input, which is the purpose of it, has a region selected. Writes
// "shown"; then "taken WxH" when the region's picture is in FILE, a PNG; or "cancelled". With
// --window it has an ordinary window besides, and writes "active" when that is the active one.
int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    auto platform = makeDesktopPlatform();
    if (!platform || argc < 2) {
        std::fprintf(stderr, "overlay-demo: %s\n",
            platform ? "takes a file" : qPrintable(platform.error().message));
        return 2;
    }
    Prefs prefs(Folders::ofUser());
    prefs.registerDefaults();
    const Demo demo(*platform, prefs, QString::fromLocal8Bit(argv[1]));
    QWindow window;
    QObject::connect(&window, &QWindow::activeChanged, [] { tell(u"active"_s); });
    if (QGuiApplication::arguments().contains(u"--window"_s))
        window.show();
    return QGuiApplication::exec();
}
