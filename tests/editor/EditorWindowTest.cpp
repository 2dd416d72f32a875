// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/Editors.h"

#include "editor/EditorCanvas.h"
#include "editor/FunMenu.h"
#include "editor/MemeDialog.h"
#include "tests/TestFiles.h"
#include "tests/editor/EditorWorld.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// An editor of a file, with somebody who uses it.
class EditorWindowTest : public testing::Test, protected EditorWorld {
protected:
    EditorWindowTest()
    {
        EXPECT_TRUE(plain(Qt::white, {200, 150}).save(path));
        before = contentOf(path);
        window = &editors.open({{QImage(path), 1, {}, {}}, path});
        QApplication::processEvents();
    }

    void draw()
    {
        Annotation it(Tool::Rect, Qt::red, 8);
        it.a = {20, 20}, it.b = {120, 100};
        canvas().edit([&](CanvasModel& model) { model.document().commit(it); });
    }
    void press(int key, Qt::KeyboardModifiers modifiers, const QString& text = {})
    {
        for (QAction* action : window->actions())
            if (action->shortcuts().contains(QKeySequence(int(modifiers.toInt()) | key)))
                return action->trigger();
        QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
        QApplication::sendEvent(&canvas(), &event);
    }
    void close()
    {
        window->close();
        QApplication::processEvents();
    }
    /// Until something else than before stands there.
    QString nextStatus(const QString& after)
    {
        while (window->windowTitle().startsWith(after))
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        return window->windowTitle().remove(u" — Pixmallow"_s);
    }

    EditorCanvas& canvas() { return *window->findChild<EditorCanvas*>(); }
    FunMenu& funMenu() { return *window->findChild<FunMenu*>(); }
    std::size_t marks() { return canvas().model().document().annotations().size(); }

    const QString path = home.path() + u"/a.png"_s;
    QByteArray before;
    Editors editors {means};
    EditorWindow* window = nullptr;
};

} // namespace

TEST_F(EditorWindowTest, whatWasUndoneIsNoEdit)
{
    draw();
    EXPECT_TRUE(window->windowTitle().contains(u"200 × 150 — Edited"_s));
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_FALSE(window->windowTitle().contains(u"Edited"_s));
    close();
    EXPECT_EQ(contentOf(path), before);
    EXPECT_EQ(fun.stats().edits, 0);
    EXPECT_TRUE(platform.fakeClipboard().image.isNull());
    EXPECT_TRUE(editors.windows().isEmpty());
}

TEST_F(EditorWindowTest, closingCopiesOnlyWhatIsNotOnTheClipboardAlready)
{
    draw();
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(window->windowTitle().startsWith(u"Copied to clipboard"_s));
    EXPECT_EQ(platform.fakeClipboard().image.pixel(20, 60) | 0xff000000, 0xffff0000U);
    platform.fakeClipboard().image = {};
    close();
    EXPECT_NE(contentOf(path), before);
    EXPECT_TRUE(platform.fakeClipboard().image.isNull()) << "copied again";

    window = &editors.open({{QImage(path), 1, {}, {}}, path});
    draw();
    press(Qt::Key_C, Qt::ControlModifier);
    press(Qt::Key_Right, {});
    platform.fakeClipboard().image = {};
    close();
    EXPECT_FALSE(platform.fakeClipboard().image.isNull()) << "an edit after the copy is not copied";
    EXPECT_EQ(fun.stats().edits, 2);
}

TEST_F(EditorWindowTest, oneFileHasOneWindowAndAllCloseWhenTheProgramMustEnd)
{
    EXPECT_EQ(&editors.open({{QImage(path), 1, {}, {}}, home.path() + u"/./a.png"_s}), window);
    EditorWindow& gone
        = editors.open({{QImage(path), 1, {}, {}}, home.path() + u"/no folder/b.png"_s});
    EXPECT_EQ(editors.windows().size(), 2);
    draw();
    window = &gone;
    draw();
    close(); // Is refused.
    EXPECT_EQ(editors.windows().size(), 2);
    editors.closeNow();
    EXPECT_TRUE(editors.windows().isEmpty());
    EXPECT_NE(contentOf(path), before);
    EXPECT_EQ(QDir(prefs.saveFolder()).entryList(QDir::Files).size(), 1) << "the other is lost";
}

TEST_F(EditorWindowTest, coversFacesAndCountsThem)
{
    Q_EMIT funMenu().coverChosen({});
    EXPECT_EQ(nextStatus(u"Looking for faces…"_s), u"No faces found in this image"_s);
    EXPECT_EQ(marks(), 0U);

    platform.fakeFaces().faces = QList<QRectF> {{10, 10, 40, 50}, {100, 20, 30, 40}};
    Q_EMIT funMenu().coverChosen(u"🐸"_s);
    EXPECT_EQ(
        nextStatus(u"Looking for faces…"_s), u"Covered 2 faces — select one to move or swap it"_s);
    EXPECT_EQ(marks(), 2U);
    EXPECT_EQ(fun.stats().facesCovered, 2);
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(marks(), 0U) << "more than one step";

    platform.fakeFaces().faces = Error::failed(u"No module."_s);
    Q_EMIT funMenu().coverChosen({});
    EXPECT_EQ(nextStatus(u"Looking for faces…"_s), u"Face detection failed"_s);
}

TEST_F(EditorWindowTest, picksStickersAndPhrases)
{
    const auto pick = [&](const QString& name) {
        Q_EMIT funMenu().stickersChosen();
        QWidget* const picker = QApplication::activePopupWidget();
        ASSERT_TRUE(picker);
        for (auto* button : picker->findChildren<QAbstractButton*>())
            if (button->accessibleName() == name)
                button->click();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_FALSE(QApplication::activePopupWidget()) << "still open";
    };
    pick(u"🐐"_s);
    EXPECT_EQ(canvas().model().tool(), Tool::Sticker);
    EXPECT_EQ(canvas().model().settings().stickerEmoji, u"🐐"_s);
    EXPECT_EQ(marks(), 0U);
    Annotation sticker(Tool::Sticker, Qt::white, 4);
    sticker.b = {60, 60};
    canvas().edit([&](CanvasModel& model) { model.document().commit(sticker); });
    pick(u"🔥"_s); // Changes the one that is selected.
    EXPECT_EQ(canvas().model().document().annotations()[0]->emoji, u"🔥"_s);
    pick(u"no cap"_s);
    EXPECT_EQ(canvas().model().document().annotations()[1]->text, u"no cap"_s);
    EXPECT_EQ(fun.stats().stickers, 1) << "a phrase counts as well";
}

TEST_F(EditorWindowTest, captionsMemes)
{
    const auto answer = [&](const QString& top, const QString& bottom) {
        Q_EMIT funMenu().memeChosen();
        auto* const dialog = window->findChild<MemeDialog*>();
        const auto fields = dialog->findChildren<QLineEdit*>();
        fields.at(0)->setText(top);
        fields.at(1)->setText(bottom);
        dialog->accept();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    };
    answer({}, u"  "_s);
    EXPECT_EQ(marks(), 0U);
    EXPECT_EQ(fun.stats().memes, 0);
    answer(u"top"_s, u"bottom"_s);
    EXPECT_EQ(marks(), 2U);
    EXPECT_EQ(fun.stats().memes, 1);
    EXPECT_TRUE(
        window->windowTitle().startsWith(u"Meme caption added — double-click a line to edit it"_s));
}
