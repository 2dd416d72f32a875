// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/CanvasPicture.h"
#include "editor/CanvasDecorations.h"
#include "editor/CanvasModel.h"
#include "editor/Colors.h"
#include "editor/Halve.h"
#include "editor/Stickers.h"
#include "editor/TextStyles.h"
#include "editor/Tools.h"

#include <gtest/gtest.h>

#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

QImage picture(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, qRgb(x * 7 + y, y * 5 + 3 * x, x ^ y));
    return image;
}

/// Somebody who tries everything, the same each time for a seed.
class Monkey final {
public:
    Monkey(CanvasModel& model, unsigned seed)
        : m_model(model)
        , m_random(seed)
    {
    }

    void act()
    {
        if (m_model.textPrompt() && number(2))
            return m_model.answerPrompt(
                number(5) ? std::optional(u"Ab\ng🔥"_s.left(number(7))) : std::nullopt);
        switch (number(14)) {
        case 0:
        case 1:
        case 2:
            return m_model.press(m_at = somewhere(), 0.5 + number(3),
                number(4) ? CanvasModel::Click::Single : CanvasModel::Click::Double);
        case 3:
        case 4:
        case 5:
        case 6:
            m_at += QPointF(number(41) - 20, number(41) - 20) * (number(4) ? 0.5 : 4);
            return m_model.drag(m_at, number(4) ? Qt::NoModifier : Qt::ShiftModifier);
        case 7:
        case 8:
            return m_model.release(number(3) ? m_at : somewhere());
        case 9:
            return m_model.setTool(allTools[std::size_t(number(std::ssize(allTools)))]);
        case 10:
            return number(3) ? m_model.document().undo() : m_model.document().redo();
        case 11:
            return set();
        default:
            return type();
        }
    }

private:
    int number(std::ptrdiff_t most) { return int(m_random() % unsigned(most)); }
    QPointF somewhere() { return QPointF(number(440) - 20, number(340) - 20) / (1 + number(2)); }

    void set()
    {
        switch (number(6)) {
        case 0:
            return m_model.setColor(QColor::fromHsv(number(360), 200, 250, 100 + number(155)));
        case 1:
            return m_model.setStrokeWidth(1 + number(20));
        case 2:
            return m_model.setSticker(Stickers::emoji()[number(40)]);
        case 3:
            return m_model.setTextStyle(TextStyles::all()[std::size_t(number(6))].name);
        case 4:
            return m_model.addTextSticker(Stickers::text()[number(16)]);
        default:
            return m_model.setFontSize(10 + number(40));
        }
    }

    void type()
    {
        static constexpr std::array keys {Qt::Key_Left, Qt::Key_Down, Qt::Key_Up, Qt::Key_Right,
            Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Escape};
        const auto modifiers = number(2) ? Qt::NoModifier : Qt::ShiftModifier;
        m_model.key(keys[std::size_t(number(std::ssize(keys)))], modifiers);
        if (number(3) == 0)
            m_model.key(0, modifiers, QString(QChar(u'a' + number(26))));
    }

    CanvasModel& m_model;
    std::mt19937 m_random;
    QPointF m_at;
};

QImage flattenedWithCurrent(const CanvasModel& model)
{
    QImage image = model.document().base();
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const Annotation* const mark : model.visible())
        mark->draw(painter, model.document().base());
    return image;
}

/// How far apart the furthest channel is.
int difference(const QImage& one, const QImage& other)
{
    if (one.size() != other.size())
        return 256;
    int most = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x)
            for (int shift = 0; shift < 24; shift += 8)
                most = std::max(most,
                    std::abs(int(one.pixel(x, y) >> shift & 255)
                        - int(other.pixel(x, y) >> shift & 255)));
    return most;
}

int rounds()
{
    return std::max(1, qEnvironmentVariableIntValue("PIXMALLOW_SOAK"));
}

} // namespace

TEST(CanvasPictureTest, showsPieceByPieceWhatFlatteningGives)
{
    for (unsigned seed = 0; seed < unsigned(2 * rounds()); ++seed) {
        CanvasModel model(picture({400, 300}), seed);
        Monkey monkey(model, seed);
        CanvasPicture shown;
        const CanvasDocument& document = std::as_const(model).document();
        for (int step = 0; step < 1000; ++step) {
            monkey.act();
            if (step % 5)
                continue;
            shown.update(document.base(), model.visible(), model.takeDamage());
            // Where a soft light begins to be drawn decides how its colours are rounded.
            ASSERT_LE(difference(shown.pixels(), flattenedWithCurrent(model)), 4)
                << "seed " << seed << ", step " << step;
        }
    }
}

TEST(CanvasPictureTest, showsAThinStrokeThatLeavesThePictureAsFlatteningGivesIt)
{
    QImage flattened = picture({200, 150});
    Annotation stroke(Tool::Pen, Qt::red, 1);
    stroke.points = {{60, 13}, {96, -47}, {91, -39.5}, {96.5, -33.5}};
    const Annotation* const marks[] = {&stroke};
    CanvasPicture shown;
    shown.update(flattened, marks, flattened.rect());
    QPainter painter(&flattened);
    painter.setRenderHint(QPainter::Antialiasing);
    stroke.draw(painter, flattened);
    EXPECT_EQ(difference(shown.pixels(), flattened), 0);
}

TEST(CanvasPictureTest, undoesAndRedoesToTheSamePixels)
{
    for (unsigned seed = 100; seed < 100 + unsigned(2 * rounds()); ++seed) {
        CanvasModel model(picture({400, 300}), seed);
        Monkey monkey(model, seed);
        for (int step = 0; step < 1500; ++step)
            monkey.act();
        CanvasDocument& document = model.document(); // Ends what the mouse was doing.
        EXPECT_FALSE(model.isPressed() || model.current() || model.cropRect());
        while (document.canRedo())
            document.redo();
        std::vector<QImage> states {document.flattened()};
        while (document.canUndo()) {
            document.undo();
            states.push_back(document.flattened());
        }
        EXPECT_EQ(states.back(), picture({400, 300}));
        EXPECT_GT(states.size(), 50U);
        for (std::size_t at = states.size() - 1; at > 0; --at) {
            document.redo();
            ASSERT_EQ(document.flattened(), states[at - 1]) << "seed " << seed << ", " << at;
        }
        EXPECT_FALSE(document.canRedo());
    }
}

TEST(CanvasPictureTest, isTheFlattenedPictureAtItsOwnSize)
{
    CanvasModel model(picture({400, 300}), 7);
    Monkey monkey(model, 7);
    for (int step = 0; step < 300; ++step)
        monkey.act();
    CanvasDocument& document = model.document();
    CanvasPicture shown;
    shown.update(document.base(), model.visible(), {});
    for (const double ratio : {1., 2.}) {
        const QSize size = document.base().size();
        CenteringClipView view;
        view.setPicture(size);
        view.setView(size, ratio);
        view.magnify(1 / ratio, {});
        QImage image(size * ratio, QImage::Format_RGB32);
        image.setDevicePixelRatio(ratio);
        QPainter painter(&image);
        shown.draw(painter, view, model.visible());
        painter.end();
        image = image.copy(QRect((view.origin() * ratio).toPoint(), size));
        image.setDevicePixelRatio(1);
        EXPECT_EQ(image, document.flattened().convertToFormat(image.format())) << ratio;
    }
}

TEST(CanvasPictureTest, halvesByAveragingFour)
{
    const QImage image = picture({33, 21});
    QImage half(17, 11, image.format());
    halve(image, half, half.rect());
    for (int y = 0; y < 11; ++y)
        for (int x = 0; x < 17; ++x)
            for (int shift = 0; shift < 24; shift += 8) {
                int sum = 0;
                for (const auto& [dx, dy] : {std::pair(0, 0), {1, 0}, {0, 1}, {1, 1}})
                    sum += int(
                        image.pixel(std::min(2 * x + dx, 32), std::min(2 * y + dy, 20)) >> shift
                        & 255);
                ASSERT_NEAR(int(half.pixel(x, y) >> shift & 255), sum / 4.0, 1);
            }
    QImage pieces(17, 11, image.format());
    for (int y = 0; y < 11; y += 3)
        for (int x = 0; x < 17; x += 4)
            halve(image, pieces, QRect(x, y, 4, 3) & pieces.rect());
    EXPECT_EQ(pieces, half);
}

TEST(CenteringClipViewTest, centresWhatIsSmallAndFillsWithWhatIsLarge)
{
    CenteringClipView view;
    view.setView({800, 600}, 1);
    view.setPicture({201, 100});
    EXPECT_EQ(view.origin(), QPointF(300, 250)); // On a whole pixel.
    EXPECT_EQ(view.range(), QSizeF(0, 0));
    view.setPicture({2000, 100});
    EXPECT_EQ(view.origin(), QPointF(0, 250));
    view.scrollTo({5000, 5000});
    EXPECT_EQ(view.origin(), QPointF(-1200, 250));
    EXPECT_EQ(view.toPicture({799, 250}), QPointF(1999, 0));
    view.setView({3000, 600}, 1);
    EXPECT_EQ(view.origin(), QPointF(500, 250));
    view.magnify(100, {});
    EXPECT_EQ(view.magnification(), 8);
    view.magnify(0, {});
    EXPECT_EQ(view.magnification(), 0.05);
}

TEST(CenteringClipViewTest, keepsWhatIsUnderThePointer)
{
    CenteringClipView view;
    view.setView({1440, 900}, 2);
    view.setPicture({3840, 2160});
    view.magnify(1, {});
    view.scrollTo({1200, 600});
    const QPointF pointer(311, 707);
    for (const double magnification : {1.25, 2., 8., 3.3, 1.1, 0.9}) {
        const QPointF before = view.toPicture(pointer);
        view.magnify(magnification, pointer);
        const QPointF off = (view.toPicture(pointer) - before) * magnification;
        EXPECT_LE(std::max(std::abs(off.x()), std::abs(off.y())), 0.5) << magnification;
    }
}

TEST(CanvasDecorationsTest, changeNothingOutsideTheirRegion)
{
    CanvasModel model(picture({400, 300}), 1);
    model.setTool(Tool::Rect);
    model.press({50, 50}, 1);
    model.drag({150, 120});
    model.release({150, 120});
    const auto selection = CanvasDecorations::of(model);
    model.setTool(Tool::Crop);
    model.press({50, 50}, 1);
    model.drag({150, 120});
    const auto crop = CanvasDecorations::of(model);
    EXPECT_EQ(selection.handles.size(), 4);
    EXPECT_TRUE(crop.crop && !crop.outline);
    for (const double magnification : {0.3, 1., 4.}) {
        CenteringClipView view;
        view.setView({500, 400}, 1);
        view.setPicture({400, 300});
        view.magnify(magnification, {250, 200});
        for (const auto& shown : {selection, crop}) {
            QImage image(500, 400, QImage::Format_RGB32);
            image.fill(Qt::gray);
            const QImage before = image;
            QPainter painter(&image);
            shown.draw(painter, view, Qt::blue);
            painter.end();
            EXPECT_NE(image, before);
            QPainter eraser(&image);
            for (const QRect& rect : shown.region(view))
                eraser.fillRect(rect, Qt::gray);
            eraser.end();
            EXPECT_EQ(image, before) << magnification;
        }
    }
}
