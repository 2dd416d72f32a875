// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "capture/CountdownView.h"
#include "capture/PermissionView.h"
#include "capture/ToastView.h"
#include "editor/keeping/ReopenView.h"
#include "preview/PreviewView.h"
#include "tests/gallery/ControlScenes.h"
#include "tests/gallery/EditorScenes.h"
#include "tests/gallery/HistoryScenes.h"
#include "tests/gallery/SettingsScenes.h"
#include "update/UpdateView.h"
#include "widgets/GlassButton.h"
#include "widgets/Icons.h"
#include "widgets/TextLabel.h"

#include <QHBoxLayout>

using namespace Qt::StringLiterals;

namespace {

ShotActions everyAction()
{
    ShotActions actions;
    actions.edit = [](const FinishedCapture&) {};
    actions.pin = actions.edit;
    actions.reveal = actions.edit;
    actions.copy = [](const FinishedCapture&) { return ShotActions::Told::answered(u""_s); };
    actions.saveAs
        = [](const FinishedCapture&, QWidget*) { return ShotActions::Told::answered(u""_s); };
    actions.share = actions.saveAs;
    return actions;
}

std::unique_ptr<QWidget> preview(
    GalleryWorld& world, QSize pixels, const QString& effect, const PetReaction& reaction)
{
    world.prefs.set(Prefs::keys.previewEffect, effect);
    const QString info = u"%1 × %2  •  Copied  •  Saved"_s.arg(pixels.width()).arg(pixels.height());
    return std::make_unique<PreviewView>(world.themes, world.prefs, everyAction(),
        PreviewView::Content {{{GalleryWorld::picture(pixels), 1, u"Terminal"_s, {}}}, info,
            reaction, u"Show in Folder"_s});
}

std::unique_ptr<QWidget> buttons(GalleryWorld& world)
{
    using Look = GlassButton::Look;
    auto widget = std::make_unique<QWidget>();
    auto* row = new QHBoxLayout(widget.get());
    row->setContentsMargins(Space::window, Space::window, Space::window, Space::window);
    row->addWidget(GlassButton::ofText(world.themes, u"Get Started"_s, Look::Prominent));
    auto* both = GlassButton::ofText(world.themes, u"Copy text"_s);
    both->setSymbol(u"text.viewfinder"_s);
    row->addWidget(both);
    for (const Look look : {Look::Glass, Look::Plain})
        row->addWidget(GlassButton::ofSymbol(world.themes, u"doc.on.doc"_s, u"Copy"_s, look));
    auto* disabled = GlassButton::ofSymbol(world.themes, u"pin"_s, u"Pin"_s);
    disabled->setEnabled(false);
    row->addWidget(disabled);
    return widget;
}

std::unique_ptr<QWidget> letters(GalleryWorld& world)
{
    auto widget = std::make_unique<QWidget>();
    auto* column = new QVBoxLayout(widget.get());
    column->setContentsMargins(Space::window, Space::group, Space::window, Space::group);
    const auto add = [&](TextStyle style, const QString& text, TextLabel::Role role) {
        auto* label = new TextLabel(world.themes, style, role);
        label->setText(text);
        column->addWidget(label);
    };
    add(TextStyle::Title1, u"Title 1"_s, TextLabel::Role::Text);
    add(TextStyle::Title2, u"Title 2"_s, TextLabel::Role::Text);
    add(TextStyle::Headline, u"A headline"_s, TextLabel::Role::Text);
    add(TextStyle::Body, u"Body text, as in settings"_s, TextLabel::Role::Text);
    add(TextStyle::Callout, u"A callout, secondary"_s, TextLabel::Role::Secondary);
    add(TextStyle::Caption, u"A caption, secondary"_s, TextLabel::Role::Secondary);
    return widget;
}

std::unique_ptr<QWidget> update(GalleryWorld& world, bool loading)
{
    const UpdateInfo info {u"1.4.2"_s, u"2026-05-04"_s, {}, {},
        {u"The region's edges snap to windows."_s,
            u"Captures of several screens keep the scale of each of them, also where one was "
            "turned while the program was running."_s,
            u"A new skin."_s}};
    auto view = std::make_unique<UpdateView>(world.themes, info, u"1.3.0"_s);
    if (loading) {
        view->setInstalling(true);
        view->setStage(u"Downloading…"_s);
        view->setReceived(40, 100);
    }
    return view;
}

Scene toast(const QString& name, const ToastMessage& message)
{
    return {name, Scene::Ground::Card, [message](GalleryWorld& world) {
                return std::make_unique<ToastView>(world.themes, message);
            }};
}

std::unique_ptr<QWidget> permission(GalleryWorld& world, bool granted)
{
    world.platform.fakeCapture().isPermitted = granted;
    auto view = std::make_unique<PermissionView>(
        PermissionView::Sources {world.themes, *world.platform.capture, *world.platform.workspace,
            world.platform.words, [] { return u"Ctrl+Shift+1"_s; }, [] { return true; }});
    world.platform.fakeCapture().isPermitted = true;
    view->setFixedSize(view->sizeHint());
    return view;
}

} // namespace

const QList<Scene>& scenes()
{
    static const QList<Scene> list = QList<Scene> {
        {u"buttons"_s, Scene::Ground::Window, buttons},
        {u"letters"_s, Scene::Ground::Window, letters},
        {u"controls"_s, Scene::Ground::Window, ControlScenes::controls},
        {u"menu"_s, Scene::Ground::None, ControlScenes::menu},
        {u"preview"_s, Scene::Ground::Card,
            [](GalleryWorld& world) {
                return preview(world, {2880, 1800}, u"comet"_s, {u"🐣"_s, u"slay"_s, 10});
            }},
        {u"preview-wide"_s, Scene::Ground::Card,
            [](GalleryWorld& world) {
                return preview(
                    world, {1600, 240}, u"spin"_s, {u"🐣"_s, u"certified screenshot moment"_s, 25});
            }},
        toast(u"toast"_s, {u"Text copied — 3 lines"_s, {}, u"text.viewfinder"_s}),
        toast(u"toast-failed"_s,
            {u"Capture failed"_s,
                u"The window is not on screen: it is minimised or on another desktop."_s,
                u"exclamationmark.triangle.fill"_s}),
        {u"reopen"_s, Scene::Ground::Card,
            [](GalleryWorld& world) { return std::make_unique<ReopenView>(world.themes, 2); }},
        {u"update"_s, Scene::Ground::None,
            [](GalleryWorld& world) { return update(world, false); }},
        {u"update-loading"_s, Scene::Ground::None,
            [](GalleryWorld& world) { return update(world, true); }},
        {u"history"_s, Scene::Ground::None,
            [](GalleryWorld& world) { return HistoryScenes::history(world, 7, {}); }},
        {u"history-search"_s, Scene::Ground::None,
            [](GalleryWorld& world) { return HistoryScenes::history(world, 7, u"order"_s); }},
        {u"history-empty"_s, Scene::Ground::None,
            [](GalleryWorld& world) { return HistoryScenes::history(world, 0, {}); }},
        {u"achievements"_s, Scene::Ground::None, HistoryScenes::achievements},
        {u"pop-up"_s, Scene::Ground::Card, HistoryScenes::popUp},
        {u"editor"_s, Scene::Ground::Window,
            [](GalleryWorld& world) { return EditorScenes::window(world, 1200); }},
        {u"editor-narrow"_s, Scene::Ground::Window,
            [](GalleryWorld& world) { return EditorScenes::window(world, 760); }},
        {u"stickers"_s, Scene::Ground::Card, EditorScenes::stickers},
        {u"phrases"_s, Scene::Ground::Card, EditorScenes::phrases},
        {u"meme"_s, Scene::Ground::Window, EditorScenes::meme},
        {u"countdown"_s, Scene::Ground::Card,
            [](GalleryWorld& world) { return std::make_unique<CountdownView>(world.themes, 3); }},
        {u"welcome"_s, Scene::Ground::None,
            [](GalleryWorld& world) { return permission(world, true); }},
        {u"permission"_s, Scene::Ground::None,
            [](GalleryWorld& world) { return permission(world, false); }},
    } + settingsScenes();
    return list;
}
