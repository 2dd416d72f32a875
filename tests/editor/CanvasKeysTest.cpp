// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/CanvasKeys.h"

#include <QImage>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class CanvasKeysTest : public testing::Test {
protected:
    bool press(int key, Qt::KeyboardModifiers modifiers = {})
    {
        return CanvasKeys::take(model, key, modifiers, seen);
    }

    const Annotation& selected() const { return *document.selected(); }

    const QRectF seen {100, 60, 300, 240}; ///< Of a picture that is enlarged.
    CanvasModel model {QImage(600, 400, QImage::Format_RGB32), 1};
    const CanvasDocument& document = std::as_const(model).document();
};

} // namespace

TEST_F(CanvasKeysTest, makesSelectsAndSizesWithoutAMouse)
{
    for (const Tool tool : {Tool::Arrow, Tool::Rect, Tool::Ellipse, Tool::Line, Tool::Pen,
             Tool::Highlighter, Tool::Step, Tool::Sticker, Tool::Blur, Tool::Redact}) {
        model.setTool(tool);
        const std::size_t before = document.annotations().size();
        ASSERT_TRUE(press(Qt::Key_Return));
        ASSERT_EQ(document.annotations().size(), before + 1) << int(tool);
        EXPECT_EQ(selected().kind, tool);
        EXPECT_TRUE(seen.contains(selected().bounds().center()));
    }
    model.document().select(1); // The rectangle.
    const QRectF before = selected().bounds();
    press(Qt::Key_Right, Qt::ControlModifier);
    press(Qt::Key_Up, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(selected().bounds(), before.adjusted(0, 0, 1, -10));
    model.document().undo();
    model.document().undo();
    model.document().select(1);
    EXPECT_EQ(selected().bounds(), before) << "each a step of its own";

    model.document().select(0);
    press(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(selected().kind, Tool::Redact) << "round at the ends";
    press(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(selected().kind, Tool::Arrow);
}

TEST_F(CanvasKeysTest, asksForATextAndOpensItAgain)
{
    model.setTool(Tool::Text);
    ASSERT_TRUE(press(Qt::Key_Return));
    ASSERT_TRUE(model.textPrompt());
    EXPECT_FALSE(press(Qt::Key_Return)) << "that one is the field's";
    model.answerPrompt(u"first"_s);
    ASSERT_EQ(selected().text, u"first"_s);
    ASSERT_TRUE(press(Qt::Key_Return));
    ASSERT_TRUE(model.textPrompt());
    model.answerPrompt(u"second"_s);
    EXPECT_EQ(selected().text, u"second"_s);
    EXPECT_EQ(document.annotations().size(), 1u);
}

TEST_F(CanvasKeysTest, cropsWithoutAMouse)
{
    model.setTool(Tool::Crop);
    EXPECT_FALSE(press(Qt::Key_Right));
    ASSERT_TRUE(press(Qt::Key_Return));
    ASSERT_EQ(model.cropRect(), QRectF(200, 140, 100, 80)) << "in the middle of what is seen";
    press(Qt::Key_Right);
    press(Qt::Key_Up, Qt::ShiftModifier);
    press(Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
    press(Qt::Key_Up, Qt::ControlModifier);
    EXPECT_EQ(model.cropRect(), QRectF(201, 130, 110, 79));
    model.key(Qt::Key_Escape, {});
    EXPECT_FALSE(model.cropRect());
    EXPECT_EQ(document.base().size(), QSize(600, 400));

    press(Qt::Key_Return);
    for (int i = 0; i < 50; ++i)
        press(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(model.cropRect(), QRectF(0, 140, 100, 80)) << "it stays within the picture";
    press(Qt::Key_Return);
    EXPECT_EQ(document.base().size(), QSize(100, 80));
    model.document().undo();
    EXPECT_EQ(document.base().size(), QSize(600, 400));
}

TEST_F(CanvasKeysTest, leavesOtherKeysToOthers)
{
    EXPECT_FALSE(press(Qt::Key_Tab)) << "it leads out of the canvas";
    EXPECT_FALSE(press(Qt::Key_Right, Qt::ControlModifier)) << "nothing to size";
    EXPECT_FALSE(press(Qt::Key_Right));
    EXPECT_FALSE(press(Qt::Key_A));
    model.setTool(Tool::Select);
    EXPECT_FALSE(press(Qt::Key_Return));
}
