// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "preview/PreviewPanel.h"

#include "preview/PreviewThumbnail.h"
#include "preview/ReactionPill.h"
#include "tests/gallery/Gallery.h"
#include "widgets/GlassButton.h"

#include <QApplication>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class PreviewPanelTest : public testing::Test {
protected:
    PreviewPanelTest()
    {
        actions.edit = [this](const FinishedCapture& capture) { edited = capture.historyId; };
        actions.copy = [this](const FinishedCapture&) {
            auto [told, copied] = ShotActions::Told::ask();
            answer = std::move(copied);
            return std::move(told);
        };
        panel = std::make_unique<PreviewPanel>(Surroundings {world.themes, world.surfaces},
            world.prefs, world.fun, actions, u"Show in Folder"_s);
    }

    void show(const QString& id = u"id"_s)
    {
        const Shot shot {GalleryWorld::picture({640, 400}), 1, u"Terminal"_s, {}};
        panel->show({shot, {}, id}, u"640 × 400"_s);
    }

    static QList<FloatingPanel*> cards()
    {
        QList<FloatingPanel*> found;
        for (auto* widget : QApplication::topLevelWidgets())
            if (auto* card = qobject_cast<FloatingPanel*>(widget); card && card->isVisible())
                found << card;
        return found;
    }
    static PreviewView* view() { return cards().first()->findChild<PreviewView*>(); }
    static GlassButton* button(const QString& name)
    {
        for (auto* each : cards().first()->findChildren<GlassButton*>())
            if (each->accessibleName() == name)
                return each;
        return nullptr;
    }

    GalleryWorld world;
    ShotActions actions;
    ShotActions::Told::Answer answer;
    QString edited;
    std::unique_ptr<PreviewPanel> panel;
};

} // namespace

TEST_F(PreviewPanelTest, showsOneCardAtATime)
{
    show();
    const auto* const first = cards().value(0);
    ASSERT_TRUE(first);
    show();
    ASSERT_EQ(cards().size(), 1) << "the first one is gone at once";
    EXPECT_NE(cards().first(), first);
    panel->closeAll();
    EXPECT_TRUE(cards().isEmpty());
}

TEST_F(PreviewPanelTest, showsEachReactionOnceAndOnlyIfAskedTo)
{
    world.fun.capture();
    show();
    EXPECT_TRUE(cards().first()->findChild<ReactionPill*>());
    show();
    EXPECT_FALSE(cards().first()->findChild<ReactionPill*>());
    world.fun.capture();
    world.prefs.set(Prefs::keys.petReactions, false);
    show();
    EXPECT_FALSE(cards().first()->findChild<ReactionPill*>());
}

TEST_F(PreviewPanelTest, closesByItselfUnlessAnActionIsUnderWay)
{
    world.prefs.set(Prefs::keys.previewSeconds, 1);
    show();
    button(u"Copy"_s)->click();
    QTest::qWait(1500);
    ASSERT_EQ(cards().size(), 1) << "while the answer is awaited";
    answer(u"Copied to clipboard"_s);
    EXPECT_TRUE(QTest::qWaitFor([] { return !view()->status().isEmpty(); }));
    EXPECT_EQ(view()->status(), u"Copied to clipboard"_s);
    EXPECT_TRUE(QTest::qWaitFor([] { return cards().isEmpty(); }));
}

TEST_F(PreviewPanelTest, opensTheEditorByAClickAndOffersOnlyWhatThereIs)
{
    show(u"seven"_s);
    EXPECT_FALSE(button(u"Share"_s)->isEnabled());
    EXPECT_TRUE(button(u"Show in Folder"_s));
    QTest::mouseClick(cards().first()->findChild<PreviewThumbnail*>(), Qt::LeftButton);
    EXPECT_EQ(edited, u"seven"_s);
    EXPECT_TRUE(QTest::qWaitFor([] { return cards().isEmpty(); }));
    show();
    QTest::keyClick(cards().first(), Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([] { return cards().isEmpty(); }));
}
