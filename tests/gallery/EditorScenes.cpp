// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/gallery/EditorScenes.h"

#include "editor/EditorCanvas.h"
#include "editor/EditorWindow.h"
#include "editor/MemeDialog.h"
#include "editor/Memes.h"
#include "editor/StickerPickerView.h"

#include <QLineEdit>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

EditorMeans meansOf(GalleryWorld& world, HistoryStore& history, KeptEdits& edits)
{
    ShotActions actions;
    actions.pin = [](const FinishedCapture&) {};
    actions.saveAs
        = [](const FinishedCapture&, QWidget*) { return ShotActions::Told::answered(u""_s); };
    actions.share = actions.saveAs;
    return {{world.themes, world.surfaces}, world.prefs, *world.platform.clipboard, history, edits,
        world.fun, actions, world.platform.faceDetector};
}

/// An editor with a history of its own.
class Editor final : public QWidget {
public:
    explicit Editor(GalleryWorld& world)
        : m_history(world.folders, world.prefs)
        , m_edits(world.folders, world.prefs, m_history)
        , m_window(
              meansOf(world, m_history, m_edits), {{GalleryWorld::picture({1280, 800}), 1, {}, {}}})
    {
        auto* all = new QVBoxLayout(this);
        all->setContentsMargins({});
        all->addWidget(&m_window);
        m_window.findChild<EditorCanvas*>()->edit([](CanvasModel& model) {
            Annotation step(Tool::Step, model.settings().color, 4);
            step.a = {180, 140};
            Annotation arrow(Tool::Arrow, model.settings().color, 6);
            arrow.a = {480, 600}, arrow.b = {700, 420};
            model.document().add({step, arrow});
            model.document().add(Memes::captions({}, u"it works on my screen"_s, {1280, 800}));
        });
    }

private:
    HistoryStore m_history;
    KeptEdits m_edits;
    EditorWindow m_window;
};

} // namespace

std::unique_ptr<QWidget> EditorScenes::window(GalleryWorld& world, int width)
{
    auto editor = std::make_unique<Editor>(world);
    editor->setFixedSize(width, 520);
    return editor;
}

std::unique_ptr<QWidget> EditorScenes::stickers(GalleryWorld& world)
{
    const auto nothing = [](const QString&) {};
    auto picker = std::make_unique<StickerPickerView>(world.themes, nothing, nothing);
    picker->layout()->setContentsMargins(Space::inner, Space::inner, Space::inner, Space::inner);
    return picker;
}

std::unique_ptr<QWidget> EditorScenes::phrases(GalleryWorld& world)
{
    auto picker = stickers(world);
    auto* const tabs = picker->findChild<SegmentedControl*>();
    tabs->setCurrent(1);
    Q_EMIT tabs->chosen(1);
    return picker;
}

std::unique_ptr<QWidget> EditorScenes::meme(GalleryWorld& world)
{
    auto dialog = std::make_unique<MemeDialog>(world.themes);
    dialog->setWindowFlags(Qt::Widget);
    dialog->findChild<QLineEdit*>()->setText(u"nobody:"_s);
    return dialog;
}
