// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/gallery/SettingsScenes.h"

#include "ui/panel/PanelView.h"
#include "ui/settings/SettingsWindow.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QPushButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// What the surfaces reach, alive as long as the widget that it belongs to.
struct UiWorld final : QObject {
    explicit UiWorld(GalleryWorld& galleryWorld)
        : world(galleryWorld)
        , hotkeys(*world.platform.hotkeys)
        , synthesised(world.folders, world.prefs, *world.platform.sound)
        , sounds(world.prefs, synthesised, *world.platform.sound, {})
        , state(world.platform, world.prefs, hotkeys, stages())
        , history(world.folders, world.prefs)
        , recent({}, {})
        , updater({.prefs = world.prefs,
              .workspace = *world.platform.workspace,
              .words = world.platform.words,
              .downloads = world.folders.downloads,
              .source = {{}, {}, {}, {}, {}, u"1.2"_s}})
    {
        state.registerHotkeys();
    }

    static CaptureStages stages()
    {
        CaptureStages stages;
        stages.countDown = [](int) { return Pending<void>::answered({}); };
        stages.selectRegion = [](const RegionQuestion&) {
            return Pending<RegionResult>::answered(Error::cancelled());
        };
        stages.recogniseText
            = [](const Shot&) { return Pending<OCR::Result>::answered(OCR::Result {}); };
        stages.openEditor = [](const FinishedCapture&) {};
        stages.showHistory = [] {};
        stages.showGallery = [] {};
        return stages;
    }

    static QList<DoctorCheck> examined()
    {
        return {{u"screen.1"_s, u"Screen 1"_s,
                    u"A pattern was captured exactly: 2560 × 1600 pixels, 2 pixels per point."_s},
            {u"tray"_s, u"Tray"_s, u"The desktop has no tray."_s,
                u"Use the shortcuts, or start Pixmallow once more to open its panel."_s},
            {u"text"_s, u"Text recognition"_s, u"Reads English and German."_s},
            {u"shortcut.screen"_s, u"Shortcut of “Capture screen”"_s,
                u"Another program has Ctrl+Shift+3."_s,
                u"Choose another one in the settings, or take it from that program."_s},
            {u"sound"_s, u"Sound"_s, u"PipeWire plays what is to be heard."_s}};
    }

    SettingsMeans settings()
    {
        return {world.themes, world.prefs, state, hotkeys, world.skins, sounds, world.fun, updater,
            *world.platform.workspace, world.platform.words, *world.platform.clipboard,
            [] { return Pending<QList<DoctorCheck>>::answered(examined()); }, [] {}};
    }

    GalleryWorld& world;
    HotkeyCenter hotkeys;
    SynthSounds synthesised;
    Sounds sounds;
    AppState state;
    HistoryStore history;
    RecentActions recent;
    Updater updater;
};

std::unique_ptr<QWidget> page(GalleryWorld& world, SettingsWindow::Page page)
{
    world.prefs.set(Prefs::keys.saveFolder, u"/home/mina/Pictures/Pixmallow"_s);
    world.prefs.set(Prefs::keys.previewEffect, u"comet"_s);
    const bool isTaken = page == SettingsWindow::Page::Shortcuts; // By another row.
    world.prefs.set(Prefs::keys.hkScreen, isTaken ? u"19:4608:2"_s : u"20:4608:3"_s);
    auto* surroundings = new UiWorld(world);
    auto window = std::make_unique<SettingsWindow>(surroundings->settings());
    surroundings->setParent(window.get()); // It goes last.
    window->setFixedSize(window->size());
    window->show(page);
    if (page == SettingsWindow::Page::Diagnosis) {
        for (auto* button : window->findChildren<QPushButton*>())
            if (button->text() == u"Run"_s)
                button->click();
        QCoreApplication::processEvents(); // The answer is there.
    }
    return window;
}

std::unique_ptr<QWidget> panel(GalleryWorld& world)
{
    auto* surroundings = new UiWorld(world);
    HistoryStore& history = surroundings->history;
    history.clear();
    for (const QSize size : {QSize(640, 400), QSize(300, 500), QSize(900, 300)})
        history.add(GalleryWorld::picture(size), 1, {}, u"Terminal"_s);
    const QDeadlineTimer deadline(std::chrono::seconds(5));
    const auto isLoaded
        = [&](const HistoryItem& item) { return history.thumbnail(item).has_value(); };
    while (!std::ranges::all_of(history.items(), isLoaded) && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
    auto view = std::make_unique<PanelView>(
        PanelView::Means {world.themes, world.prefs, surroundings->state, world.fun,
            surroundings->history, surroundings->recent, [] { return u"Update to 1.3"_s; }, [] {}});
    surroundings->setParent(view.get());
    return view;
}

} // namespace

QList<Scene> settingsScenes()
{
    QList<Scene> scenes {{u"panel"_s, Scene::Ground::Card, panel}};
    const QStringList names = SettingsWindow::pageNames();
    for (int index = 0; index < names.size(); ++index)
        scenes << Scene {u"settings-"_s + names[index].toLower(), Scene::Ground::Window,
            [index](GalleryWorld& world) { return page(world, SettingsWindow::Page(index)); }};
    return scenes;
}
