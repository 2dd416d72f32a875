// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "history/HistoryWindow.h"

#include "history/HistoryGrid.h"
#include "history/TextIndex.h"
#include "platform/fake/FakePlatform.h"
#include "tests/history/HistoryPlace.h"
#include "widgets/EmptyState.h"
#include "widgets/GlassButton.h"
#include "widgets/TextLabel.h"

#include <QLineEdit>
#include <QMessageBox>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class HistoryViewTest : public testing::Test, protected HistoryPlace {
protected:
    HistoryViewTest()
    {
        prefs().set(Prefs::keys.historyMax, 1000);
        skins.apply();
        ShotActions shots;
        shots.edit = [this](const FinishedCapture& capture) { edited << capture; };
        shots.copy = [this](const FinishedCapture& capture) {
            copied << capture.historyId;
            return ShotActions::Told::answered(u"Copied to clipboard"_s);
        };
        actions = std::make_unique<HistoryActions>(HistoryActions::Means {themes, prefs(), store(),
            *platform.clipboard, *platform.workspace, platform.words, shots, {}});
    }

    void add(int count)
    {
        for (int i = 0; i < count; ++i) {
            now = now.addSecs(600);
            store().add(
                sampleImage(i), 1, savedFile(u"%1.png"_s.arg(i), pngOf(sampleImage(i))), u"Mail"_s);
        }
    }
    void open()
    {
        view = std::make_unique<HistoryView>(HistoryView::Means {themes, store(), *actions, texts});
        view->resize(900, 640);
        view->show();
        view->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(view.get()));
    }
    HistoryGrid* grid() const { return view->findChild<HistoryGrid*>(); }
    QLineEdit* search() const { return view->findChild<QLineEdit*>(); }
    void press(int key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), modifiers);
    }
    QStringList selected() const
    {
        QStringList ids;
        for (const auto& item : grid()->selected())
            ids << item.id;
        return ids;
    }
    QString id(int index) { return store().items()[index].id; }
    /// The title of the page that says why there is nothing.
    QString emptyTitle() const
    {
        for (const auto* state : view->findChildren<EmptyState*>())
            if (state->isVisible())
                return state->findChildren<TextLabel*>().first()->text();
        return {};
    }
    QMessageBox* question() const { return view->findChild<QMessageBox*>(); }
    void answer(QMessageBox::ButtonRole role) const
    {
        for (auto* button : question()->buttons())
            if (question()->buttonRole(button) == role)
                return button->click();
    }

    FakePlatform platform;
    Skins skins {prefs(), *platform.appearance};
    Themes themes {skins, *platform.appearance};
    TextIndex texts {folders()};
    QList<FinishedCapture> edited;
    QStringList copied;
    std::unique_ptr<HistoryActions> actions;
    std::unique_ptr<HistoryView> view;
};

} // namespace

TEST_F(HistoryViewTest, anEmptyHistoryIsNotTheSameAsNoMatch)
{
    open();
    EXPECT_EQ(emptyTitle(), u"No screenshots yet"_s);
    add(1);
    EXPECT_EQ(emptyTitle(), QString());
    QTest::keyClicks(search(), u"elephant"_s);
    EXPECT_EQ(emptyTitle(), u"No matches"_s);
    view->findChildren<EmptyState*>().last()->actionWanted();
    EXPECT_EQ(search()->text(), QString());
    EXPECT_EQ(emptyTitle(), QString());
}

TEST_F(HistoryViewTest, whatIsSeenStaysWhileCapturesComeAndGo)
{
    add(300);
    open();
    QScrollBar* const bar = grid()->verticalScrollBar();
    const auto under = [&](QPoint at) {
        QTest::mouseMove(grid()->viewport(), at - QPoint(1, 0));
        QTest::mouseMove(grid()->viewport(), at);
        const auto item = grid()->hovered();
        return item ? item->id : QString();
    };
    bar->setValue(4321);
    const QPoint middle(120, 300);
    const QString seen = under(middle);
    ASSERT_FALSE(seen.isEmpty());
    for (int step = 0; step < 40; ++step) {
        if (step % 3 == 0)
            add(1);
        else if (step % 3 == 1)
            store().remove(store().items()[step]);
        else
            store().remove(store().items().last());
        // The rows of the day may be filled anew, but nobody loses sight of what is looked at.
        bool isThere = false;
        for (int place = 0; place < 12; ++place)
            isThere |= under({120 + place % 4 * 216, 133 + place / 4 * 167}) == seen;
        ASSERT_TRUE(isThere) << step;
    }
    bar->setValue(0);
    add(1); // At the top, the newest one is to be seen.
    EXPECT_EQ(bar->value(), 0);
}

TEST_F(HistoryViewTest, isUsedWithTheKeyboardAlone)
{
    add(12);
    open();
    EXPECT_TRUE(search()->hasFocus());
    press(Qt::Key_Down);
    EXPECT_EQ(selected(), QStringList {id(0)});
    press(Qt::Key_Right);
    press(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(selected(), QStringList({id(1), id(2)}));
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(platform.fakeClipboard().files,
        QStringList({store().items()[1].path, store().items()[2].path}));
    press(Qt::Key_Home);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(comesTrue([&] { return copied == QStringList {id(0)}; }));
    const QString second = id(1);
    press(Qt::Key_Delete);
    EXPECT_EQ(store().items().size(), 11);
    EXPECT_EQ(selected(), QStringList {second}); // The next one is at hand.
    press(Qt::Key_Return);
    ASSERT_TRUE(comesTrue([&] { return !edited.isEmpty(); }));
    EXPECT_EQ(edited.first().historyId, second);

    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_Delete); // So many not without a question.
    ASSERT_TRUE(question());
    EXPECT_EQ(question()->text(), u"Remove 11 captures from the history?"_s);
    answer(QMessageBox::RejectRole);
    EXPECT_EQ(store().items().size(), 11);

    grid()->setFocus();
    press(Qt::Key_M); // Typing looks for it, wherever the keyboard is.
    EXPECT_TRUE(search()->hasFocus());
    EXPECT_EQ(search()->text(), u"m"_s);
    press(Qt::Key_Escape);
    EXPECT_EQ(search()->text(), QString());
    EXPECT_TRUE(view->isVisible());
    press(Qt::Key_Escape);
    EXPECT_FALSE(view->isVisible());
}

TEST_F(HistoryViewTest, anEditorGetsThePathOfTheUsersFileOnly)
{
    now = now.addSecs(60);
    store().add(sampleImage(1), 2, {}, u"Mail"_s); // A private copy.
    now = now.addSecs(60);
    const QString saved = savedFile(u"a.png"_s, pngOf(sampleImage(2)));
    store().add(sampleImage(2), 2, saved, u"Mail"_s);
    open();
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    press(Qt::Key_Right);
    press(Qt::Key_Return);
    ASSERT_TRUE(comesTrue([&] { return edited.size() == 2; }));
    for (const auto& capture : edited) {
        EXPECT_EQ(capture.path, capture.historyId == id(0) ? saved : QString());
        EXPECT_EQ(capture.shot.scale, 2);
        EXPECT_FALSE(capture.shot.image.isNull());
    }
}

TEST_F(HistoryViewTest, clearingAsksOnceAndLeavesTheUsersFiles)
{
    add(3);
    open();
    const QString file = store().items().first().path;
    GlassButton* clear = nullptr;
    for (auto* button : view->findChildren<GlassButton*>())
        if (button->text() == u"Clear History"_s)
            clear = button;
    ASSERT_TRUE(clear);
    clear->click();
    ASSERT_TRUE(question());
    EXPECT_EQ(question()->text(), u"Remove all 3 captures from the history?"_s);
    answer(QMessageBox::DestructiveRole);
    EXPECT_TRUE(store().items().isEmpty());
    EXPECT_EQ(emptyTitle(), u"No screenshots yet"_s);
    EXPECT_FALSE(clear->isEnabled());
    EXPECT_TRUE(QFileInfo::exists(file));
}
