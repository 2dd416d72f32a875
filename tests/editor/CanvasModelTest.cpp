// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/CanvasModel.h"

#include "editor/Colors.h"
#include "editor/Tools.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QImage picture(QSize size = {400, 300})
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, qRgb(x * 7 + y, y * 5 + 3 * x, x ^ y));
    return image;
}

class CanvasModelTest : public testing::Test {
protected:
    void drag(QPointF from, QPointF to, Qt::KeyboardModifiers modifiers = {})
    {
        model.press(from, 1);
        model.drag((from + to) / 2, modifiers);
        model.drag(to, modifiers);
        model.release(to);
    }

    void click(QPointF at) { drag(at, at); }

    /// One that is selected.
    void make(Tool tool, QPointF from, QPointF to)
    {
        model.setTool(tool);
        drag(from, to);
    }

    std::size_t count() const { return document.annotations().size(); }
    const Annotation& last() const { return *document.annotations().back(); }

    CanvasModel model {picture(), 1};
    const CanvasDocument& document = std::as_const(model).document();
};

using enum CanvasModel::KeyAnswer;

} // namespace

TEST_F(CanvasModelTest, makesWhatIsDragged)
{
    const QPointF from(100, 100), to(180, 130);
    struct Case {
        Tool tool;
        QPointF to;
        Qt::KeyboardModifiers modifiers;
        QPointF end;
    };
    const double diagonal = std::sqrt(0.5) * std::hypot(80, 60);
    const Case cases[] = {
        {Tool::Arrow, to, {}, to},
        {Tool::Line, {180, 130}, Qt::ShiftModifier, {100 + std::hypot(80, 30), 100}},
        {Tool::Arrow, {180, 160}, Qt::ShiftModifier, {100 + diagonal, 100 + diagonal}},
        {Tool::Rect, to, {}, to},
        {Tool::Rect, to, Qt::ShiftModifier, {180, 180}},
        {Tool::Ellipse, {70, 20}, Qt::ShiftModifier, {20, 20}},
        {Tool::Blur, {70, 190}, Qt::ShiftModifier, {10, 190}},
        {Tool::Redact, to, Qt::ControlModifier, to},
        {Tool::Sticker, to, Qt::ShiftModifier, {180, 180}},
    };
    for (const Case& that : cases) {
        model.setTool(that.tool);
        model.setColor(Colors::blue);
        model.setStrokeWidth(9);
        drag(from, that.to, that.modifiers);
        ASSERT_FALSE(model.current());
        EXPECT_EQ(last().kind, that.tool);
        EXPECT_EQ(last().a, from);
        EXPECT_NEAR(last().b.x(), that.end.x(), 1e-9) << int(that.tool);
        EXPECT_NEAR(last().b.y(), that.end.y(), 1e-9) << int(that.tool);
        EXPECT_EQ(last().color, Colors::blue);
        EXPECT_EQ(last().width, 9);
        EXPECT_EQ(document.selected(), &last());
    }
    EXPECT_EQ(document.undoSteps(), std::size(cases));
    EXPECT_TRUE(document.isDirty());
}

TEST_F(CanvasModelTest, dropsWhatWasOnlyClicked)
{
    for (const Tool tool : {Tool::Arrow, Tool::Line, Tool::Rect, Tool::Ellipse, Tool::Blur,
             Tool::Redact, Tool::Crop, Tool::Select}) {
        model.setTool(tool);
        click({50, 50});
        drag({50, 50}, {53, 50}); // No further than 3.
        EXPECT_EQ(count(), 0U) << int(tool);
    }
    EXPECT_FALSE(document.canUndo());
    EXPECT_FALSE(document.isDirty());
    model.setTool(Tool::Rect);
    drag({50, 50}, {53, 51});
    EXPECT_EQ(count(), 1U);
}

TEST_F(CanvasModelTest, keepsWhateverThePenTouched)
{
    for (const Tool tool : {Tool::Pen, Tool::Highlighter}) {
        model.setTool(tool);
        model.press({10, 10}, 1);
        model.drag({20, 10}, Qt::ShiftModifier);
        model.drag({20, 30});
        model.release({20, 30});
        EXPECT_EQ(last().points, (QList<QPointF> {{10, 10}, {20, 10}, {20, 30}}));
        model.setTool(tool);
        model.press({10, 10}, 1);
        model.release({10, 10});
        EXPECT_EQ(last().points, QList<QPointF> {QPointF(10, 10)});
    }
    EXPECT_EQ(document.undoSteps(), 4U);
}

TEST_F(CanvasModelTest, placesStickersByClickOrDragAndTellsOfThem)
{
    int placed = 0;
    model.setOnSticker([&] { ++placed; });
    model.setSticker(u"🔥"_s);
    model.setTool(Tool::Sticker);
    click({200, 150});
    const double half = 28 * 2.6 / 2;
    EXPECT_EQ(QRectF(last().a, last().b), QRectF(200 - half, 150 - half, 2 * half, 2 * half));
    EXPECT_EQ(last().emoji, u"🔥"_s);
    bool varies = false;
    for (int turn = 0; turn < 50; ++turn) {
        model.setTool(Tool::Sticker);
        drag({10, 10}, {60, 60});
        EXPECT_LE(std::abs(last().rotation), 10);
        varies |= last().rotation != document.annotations().front()->rotation;
    }
    EXPECT_TRUE(varies);
    EXPECT_EQ(placed, 51);

    // Another emoji is for the selected one and for the next one, in one step.
    const auto steps = document.undoSteps();
    model.setSticker(u"🐸"_s);
    EXPECT_EQ(last().emoji, u"🐸"_s);
    EXPECT_EQ(document.undoSteps(), steps + 1);
    EXPECT_EQ(placed, 51);
}

TEST_F(CanvasModelTest, numbersStepsByHowManyThereAre)
{
    model.setTool(Tool::Step);
    for (const double x : {50, 150, 250})
        click({x, 100});
    EXPECT_EQ(last().number, 3);
    EXPECT_EQ(document.selected(), &last());
    click({50, 100}); // On another one while a third is selected: a fourth.
    EXPECT_EQ(last().number, 4);
    model.key(Qt::Key_Backspace, {});
    model.setTool(Tool::Select);
    click({50, 100});
    model.key(Qt::Key_Delete, {});
    model.setTool(Tool::Step);
    click({350, 100});
    EXPECT_EQ(last().number, 3); // Again.
}

TEST_F(CanvasModelTest, asksForTexts)
{
    model.setTool(Tool::Text);
    model.setTextStyle(u"Neon"_s);
    for (const auto& answer : {std::optional<QString>(), std::optional(u""_s)}) {
        model.press({50, 60}, 1);
        EXPECT_EQ(model.key(Qt::Key_Shift, Qt::ShiftModifier), Ignored);
        ASSERT_TRUE(model.textPrompt() && model.textPrompt()->isNew);
        model.release({50, 60});
        model.answerPrompt(answer);
        EXPECT_EQ(count(), 0U);
        EXPECT_FALSE(document.canUndo());
    }
    click({50, 60});
    model.answerPrompt(u"one\ntwo"_s);
    ASSERT_EQ(count(), 1U);
    EXPECT_EQ(last().a, QPointF(50, 60));
    EXPECT_EQ(last().style, u"Neon"_s);
    EXPECT_FALSE(model.textPrompt());

    const auto edit = [&](const std::optional<QString>& answer) {
        model.press({60, 80}, 1);
        model.release({60, 80});
        model.press({60, 80}, 1, CanvasModel::Click::Double);
        model.release({60, 80});
        ASSERT_TRUE(model.textPrompt() && !model.textPrompt()->isNew);
        EXPECT_TRUE(model.visible().empty()); // The field stands in its place.
        model.answerPrompt(answer);
    };
    edit({});
    EXPECT_EQ(document.undoSteps(), 1U);
    edit(u"three"_s);
    EXPECT_EQ(last().text, u"three"_s);
    EXPECT_EQ(document.undoSteps(), 2U);
    edit(u""_s); // What has no text could not be seen or touched.
    EXPECT_EQ(count(), 0U);
    model.document().undo();
    EXPECT_EQ(last().text, u"three"_s);
}

TEST_F(CanvasModelTest, selectsTheTopmostByATolerance)
{
    make(Tool::Redact, {100, 100}, {200, 200});
    make(Tool::Redact, {150, 150}, {250, 250});
    model.setTool(Tool::Select);
    struct Case {
        QPointF at;
        double magnification;
        int index;
    };
    const Case cases[] = {
        {{160, 160}, 1, 1}, {{110, 110}, 1, 0}, {{300, 100}, 1, -1}, {{260, 240}, 1, 1},
        {{260.1, 240}, 1, -1}, // 4 of bounds and 6 of tolerance.
        {{260.1, 240}, 0.5, 1}, {{257.1, 240}, 2, -1}, // On the screen it is the same.
    };
    for (const Case& that : cases) {
        model.key(Qt::Key_Escape, {});
        model.press(that.at, that.magnification);
        model.release(that.at);
        const int found = document.selected() == nullptr ? -1 : document.selected() == &last();
        EXPECT_EQ(found, that.index) << that.at.x() << " at " << that.magnification;
    }
    EXPECT_EQ(document.undoSteps(), 2U);
}

TEST_F(CanvasModelTest, movesAndPullsInOneStepEach)
{
    make(Tool::Rect, {100, 100}, {200, 200});
    drag({150, 150}, {170, 140}); // With the rectangle tool still in hand.
    EXPECT_EQ(QRectF(last().a, last().b), QRectF(120, 90, 100, 100));
    EXPECT_EQ(document.undoSteps(), 2U);
    drag({220 + 6, 190 + 6}, {240, 200}); // Within reach of a corner.
    EXPECT_EQ(QRectF(last().a, last().b), QRectF(120, 90, 120, 110));
    EXPECT_EQ(document.undoSteps(), 3U);

    const Annotation before = last();
    model.press({246, 206}, 1);
    model.drag({300, 300});
    model.drag({246, 206});
    model.release({246, 206}); // Back where it began.
    click({150, 150});
    EXPECT_EQ(last(), before);
    EXPECT_EQ(document.undoSteps(), 3U);
    model.document().undo();
    model.document().undo();
    model.document().undo();
    EXPECT_EQ(count(), 0U);
    EXPECT_FALSE(document.canUndo());
    model.document().redo();
    EXPECT_EQ(QRectF(last().a, last().b), QRectF(100, 100, 100, 100));
    EXPECT_EQ(document.selected(), nullptr);
}

TEST_F(CanvasModelTest, obeysKeys)
{
    EXPECT_EQ(model.key(Qt::Key_Left, {}), Ignored); // Nothing is selected.
    EXPECT_EQ(model.key(Qt::Key_Delete, {}), Ignored);
    make(Tool::Rect, {100, 100}, {200, 200});
    const auto corner = [&] { return last().a; };
    EXPECT_EQ(model.key(Qt::Key_Left, {}), Taken);
    EXPECT_EQ(corner(), QPointF(99, 100));
    model.key(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(corner(), QPointF(99, 110));
    model.key(Qt::Key_Right, Qt::KeypadModifier);
    model.key(Qt::Key_Up, {});
    EXPECT_EQ(corner(), QPointF(100, 109));
    EXPECT_EQ(document.undoSteps(), 5U);

    for (const ToolInfo& info : tools()) {
        EXPECT_EQ(model.key(0, {}, QString(QChar(info.key))), Taken);
        EXPECT_EQ(model.tool(), info.tool);
        EXPECT_EQ(model.key(0, Qt::ShiftModifier, QString(QChar(info.key).toUpper())), Taken);
    }
    for (const auto modifier : {Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier})
        EXPECT_EQ(model.key(0, modifier, u"a"_s), Ignored);
    EXPECT_EQ(model.tool(), Tool::Crop);

    model.setTool(Tool::Select);
    click({150, 150});
    ASSERT_TRUE(document.selected());
    EXPECT_EQ(model.key(Qt::Key_Escape, {}), Taken);
    EXPECT_FALSE(document.selected());
    EXPECT_EQ(model.key(Qt::Key_Escape, {}), Close);
}

TEST_F(CanvasModelTest, abandonsWhatIsUnderWayOnEscape)
{
    make(Tool::Rect, {100, 100}, {200, 200});
    const Annotation before = last();
    model.press({150, 150}, 1);
    model.drag({160, 160});
    EXPECT_EQ(model.key(Qt::Key_Delete, {}), Taken); // One thing at a time.
    EXPECT_EQ(model.key(Qt::Key_Escape, {}), Taken);
    model.drag({170, 170});
    model.release({170, 170});
    ASSERT_EQ(count(), 1U);
    EXPECT_EQ(last(), before);
    for (const Tool tool : {Tool::Arrow, Tool::Crop, Tool::Pen}) {
        model.setTool(tool);
        model.press({10, 10}, 1);
        model.drag({60, 60});
        EXPECT_EQ(model.key(Qt::Key_Escape, {}), Taken);
        model.release({60, 60});
    }
    EXPECT_EQ(document.undoSteps(), 1U);
    EXPECT_EQ(document.base().size(), QSize(400, 300));
}

TEST_F(CanvasModelTest, endsADragBeforeAnythingElseIsDone)
{
    make(Tool::Rect, {100, 100}, {200, 200});
    model.press({150, 150}, 1);
    model.drag({160, 150});
    model.setColor(Colors::green);
    EXPECT_EQ(document.undoSteps(), 3U); // Made, moved, coloured.
    EXPECT_EQ(last().a, QPointF(110, 100));
    EXPECT_EQ(last().color, Colors::green);
    model.setColor(Colors::green); // No change, no step.
    EXPECT_EQ(document.undoSteps(), 3U);
    model.setTool(Tool::Arrow);
    model.press({10, 10}, 1);
    model.drag({60, 10});
    model.document().undo(); // What was just made.
    EXPECT_EQ(count(), 1U);
    EXPECT_FALSE(model.isPressed());
}

TEST_F(CanvasModelTest, cropsToWholePixelsOfThePicture)
{
    make(Tool::Redact, {90, 90}, {120, 120});
    const QImage before = document.flattened();
    int changes = 0;
    model.document().setOnChange([&] { ++changes; });
    model.setTool(Tool::Crop);
    drag({10, 10}, {14, 100}); // Too narrow.
    EXPECT_EQ(changes, 0);
    drag({100.4, 100.6}, {500, 250.2}); // Beyond the picture.
    EXPECT_EQ(changes, 1);
    EXPECT_FALSE(model.cropRect());
    EXPECT_EQ(document.base(), before.copy(100, 100, 300, 151));
    EXPECT_EQ(count(), 0U);
    drag({-50, -50}, {-10, -10});
    EXPECT_EQ(changes, 1);
    model.document().undo();
    EXPECT_EQ(document.base(), picture());
    EXPECT_EQ(document.flattened(), before);
    EXPECT_EQ(count(), 1U);
    EXPECT_EQ(changes, 2);
}

TEST_F(CanvasModelTest, addsSeveralInOneStepAndPhrasesInTheMiddle)
{
    model.document().add(
        {Annotation(Tool::Rect, Colors::red, 4), Annotation(Tool::Line, Colors::red, 4)});
    EXPECT_EQ(count(), 2U);
    EXPECT_EQ(document.undoSteps(), 1U);
    model.addTextSticker(u"no cap"_s);
    EXPECT_EQ(last().text, u"no cap"_s);
    EXPECT_NEAR(last().bounds().center().x(), 200, 0.01);
    EXPECT_NEAR(last().bounds().center().y(), 150, 0.01);
    EXPECT_EQ(document.undoSteps(), 2U);
}

TEST_F(CanvasModelTest, sharesInSnapshotsWhatDidNotChange)
{
    for (int turn = 0; turn < 20; ++turn)
        make(Tool::Rect, {10. + turn, 10}, {100, 100});
    const auto before = document.snapshot();
    model.key(Qt::Key_Left, {});
    const auto after = document.snapshot();
    EXPECT_EQ(before.image.cacheKey(), after.image.cacheKey());
    for (std::size_t at = 0; at < 20; ++at)
        EXPECT_EQ(before.annotations[at] == after.annotations[at], at != 19) << at;
    EXPECT_EQ(before.annotations[19]->a, QPointF(29, 10)); // As it was.
}
