// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "bench/Limit.h"
#include "bench/Rounds.h"
#include "platform/DesktopPlatform.h"
#include "ui/Surfaces.h"
#include "ui/panel/PetRow.h"

#include <QApplication>
#include <QTemporaryDir>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr Limit panelLimit {50, 50}; ///< Milliseconds until the panel is painted.
constexpr Limit settingsLimit {150, 150};

/// Sees the first painting of widgets of a kind.
template <typename Widget>
class Painted final : public QObject {
public:
    Painted() { qApp->installEventFilter(this); }

    void wait()
    {
        while (!m_isPainted)
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

private:
    bool eventFilter(QObject* receiver, QEvent* event) override
    {
        m_isPainted |= event->type() == QEvent::Paint && qobject_cast<Widget*>(receiver);
        return false;
    }

    bool m_isPainted = false;
};

/// All that stands behind the surfaces, of a user who has just begun.
struct World {
    explicit World(DesktopPlatform& platform)
        : prefs(folders)
        , rooms((prefs.registerDefaults(), platform), prefs, folders)
        , hotkeys(*platform.hotkeys)
        , state(platform, prefs, hotkeys, rooms.stages())
    {
        for (int captures = 0; captures < 4; ++captures) {
            QImage picture(1920, 1080, QImage::Format_RGB32);
            picture.fill(QColor::fromHsv(captures * 90, 80, 200));
            rooms.history().add(picture, 1, {}, u"Terminal"_s);
        }
    }

    QTemporaryDir home;
    Folders folders {.configuration = home.path(),
        .data = home.filePath(u"data"_s),
        .cache = home.filePath(u"cache"_s)};
    Prefs prefs;
    Rooms rooms;
    HotkeyCenter hotkeys;
    AppState state;
};

SettingsMeans settingsMeans(DesktopPlatform& platform, World& world)
{
    return {world.rooms.surroundings().themes, world.prefs, world.state, world.hotkeys,
        world.rooms.skins(), world.rooms.sounds(), world.rooms.fun(), world.rooms.updater(),
        *platform.workspace, platform.words, *platform.clipboard, {}, [] {}};
}

void tell(const Rounds& rounds, const QString& name, Limit limit)
{
    std::printf("%s: cpu ms %s, p95 %.1f, wall %.1f\n", qPrintable(name),
        qPrintable(judged(rounds.medianCpu(name), limit)), rounds.cpu95(name),
        rounds.medianWall(name));
}

void measure(DesktopPlatform& platform, World& world, int count)
{
    RecentActions recent(world.rooms.actions(), u"Show in Folder"_s);
    const PanelView::Means means {world.rooms.surroundings().themes, world.prefs, world.state,
        world.rooms.fun(), world.rooms.history(), recent};
    std::unique_ptr<MenuPanel> panel;
    std::unique_ptr<SettingsWindow> settings;
    const auto openPanel = [&] {
        Painted<PetRow> painted;
        panel->open(QPointF(600, 20));
        painted.wait();
    };
    const auto openSettings = [&] {
        Painted<SettingsWindow> painted;
        if (!settings)
            settings = std::make_unique<SettingsWindow>(settingsMeans(platform, world));
        settings->present();
        painted.wait();
    };
    const QString first = u"panel, first"_s, again = u"panel, again"_s;
    const QString window = u"settings, first"_s, later = u"settings, again"_s;
    Rounds rounds;
    rounds.add(u"forget"_s, [&] {
        settings.reset();
        panel = std::make_unique<MenuPanel>(world.rooms.surroundings(), means);
    });
    rounds.add(first, openPanel);
    rounds.add(u"close"_s, [&] { panel->toggle({}); });
    rounds.add(again, openPanel);
    rounds.add(u"close it"_s, [&] { panel->toggle({}); });
    rounds.add(window, openSettings);
    rounds.add(u"close them"_s, [&] { settings->close(); });
    rounds.add(later, openSettings);
    rounds.run(count);
    for (const QString& name : {first, again})
        tell(rounds, name, panelLimit);
    for (const QString& name : {window, later})
        tell(rounds, name, settingsLimit);
}

} // namespace

// usage: virtual-desktop --compositor -- PanelBench [ROUNDS]
int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    auto platform = makeDesktopPlatform();
    if (!platform) {
        std::fprintf(stderr, "PanelBench: %s\n", qPrintable(platform.error().message));
        return 2;
    }
    World world(*platform);
    measure(*platform, world, std::max(1, QApplication::arguments().value(1, u"9"_s).toInt()));
    return 0;
}
