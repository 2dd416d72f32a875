// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/EditorCanvas.h"

#include "editor/TextField.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QPointingDevice>
#include <QScreen>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace {

QImage picture(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, qRgb(x / 2, y / 2, (x + y) / 4));
    return image;
}

/// A canvas in a window, and somebody with mouse and keyboard. Positions are in the viewport.
class EditorCanvasTest : public testing::Test {
protected:
    EditorCanvasTest()
    {
        canvas.resize(500, 400);
        canvas.show();
        canvas.activateWindow();
        QApplication::processEvents();
    }

    void mouse(QEvent::Type type, QPointF at, Qt::MouseButton button = Qt::LeftButton,
        Qt::KeyboardModifiers modifiers = {})
    {
        const auto buttons = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
        QMouseEvent event(type, at, canvas.viewport()->mapToGlobal(at),
            type == QEvent::MouseMove ? Qt::NoButton : button, buttons, modifiers);
        QApplication::sendEvent(canvas.viewport(), &event);
    }

    void drag(QPointF from, QPointF to, Qt::MouseButton button = Qt::LeftButton)
    {
        mouse(QEvent::MouseButtonPress, from, button);
        for (int step = 1; step <= 4; ++step) {
            mouse(QEvent::MouseMove, from + (to - from) * step / 4, button);
            QApplication::processEvents();
        }
        mouse(QEvent::MouseButtonRelease, to, button);
        QApplication::processEvents();
    }

    void key(
        QEvent::Type type, int key, const QString& typed = {}, Qt::KeyboardModifiers modifiers = {})
    {
        auto* const field = canvas.findChild<TextField*>();
        QKeyEvent event(type, key, modifiers, typed);
        QApplication::sendEvent(
            field && field->isVisible() ? static_cast<QWidget*>(field) : &canvas, &event);
    }

    void type(int what, const QString& typed = {}, Qt::KeyboardModifiers modifiers = {})
    {
        key(QEvent::KeyPress, what, typed, modifiers);
        key(QEvent::KeyRelease, what, typed, modifiers);
        QApplication::processEvents();
    }

    void wheel(QPointF at, int delta, Qt::KeyboardModifiers modifiers)
    {
        QWheelEvent event(at, canvas.viewport()->mapToGlobal(at), {}, {0, delta}, Qt::NoButton,
            modifiers, Qt::NoScrollPhase, false);
        QApplication::sendEvent(canvas.viewport(), &event);
        QApplication::processEvents();
    }

    void pinch(QPointF at, double larger)
    {
        const QPointF onScreen = canvas.viewport()->mapToGlobal(at);
        QNativeGestureEvent event(Qt::ZoomNativeGesture, QPointingDevice::primaryPointingDevice(),
            2, at, onScreen, onScreen, larger, {});
        QApplication::sendEvent(canvas.viewport(), &event);
        QApplication::processEvents();
    }

    std::size_t count() const { return canvas.model().document().annotations().size(); }
    const Annotation& last() const { return *canvas.model().document().annotations().back(); }

    /// What has been painted so far is what painting everything would give.
    void expectUpToDate(const char* after)
    {
        QApplication::processEvents();
        while (!canvas.isStill())
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QApplication::processEvents();
        const QRect inside = canvas.viewport()->geometry();
        auto* const screen = QGuiApplication::primaryScreen();
        const QImage shown = screen->grabWindow(canvas.winId()).toImage().copy(inside);
        const QImage fresh = canvas.viewport()->grab().toImage();
        ASSERT_EQ(shown.size(), fresh.size());
        QRect differing;
        for (int y = 0; y < shown.height(); ++y)
            for (int x = 0; x < shown.width(); ++x)
                for (int shift = 0; shift < 24; shift += 8)
                    if (std::abs(int(shown.pixel(x, y) >> shift & 255)
                            - int(fresh.pixel(x, y) >> shift & 255))
                        > 3)
                        differing |= QRect(x, y, 1, 1);
        EXPECT_TRUE(differing.isEmpty())
            << "after " << after << " at " << canvas.view().magnification() << ": "
            << differing.left() << "," << differing.top() << " " << differing.width() << "x"
            << differing.height();
    }

    EditorCanvas canvas {picture({1000, 800})};
};

} // namespace

TEST_F(EditorCanvasTest, paintsNoMoreThanNeededAndNoLess)
{
    for (const double magnification : {1., 0.45, 1.5, 3., 0.2}) {
        canvas.magnify(magnification);
        expectUpToDate("magnifying");
        for (const auto letter : u"arehlpnsbx"_s) {
            type(0, QString(letter));
            drag({80, 90}, {260, 230});
            expectUpToDate(qPrintable(QString(letter)));
        }
        drag({170, 160}, {210, 180}); // The last one.
        expectUpToDate("moving");
        type(Qt::Key_Left);
        expectUpToDate("nudging");
        canvas.edit([](CanvasModel& model) { model.setColor(Qt::green); });
        drag({400, 300}, {300, 250}, Qt::MiddleButton);
        expectUpToDate("panning");
        canvas.edit([](CanvasModel& model) { model.document().undo(); });
        expectUpToDate("undoing");
    }
    canvas.magnify(1);
    type(0, u"c"_s);
    mouse(QEvent::MouseButtonPress, {50, 50});
    mouse(QEvent::MouseMove, {300, 200});
    QApplication::processEvents();
    mouse(QEvent::MouseMove, {250, 220});
    expectUpToDate("drawing a crop rectangle");
    mouse(QEvent::MouseButtonRelease, {250, 220});
    expectUpToDate("cropping");
    EXPECT_EQ(canvas.view().picture(), QSize(200, 170));
}

TEST_F(EditorCanvasTest, magnifiesAboutThePointerAndPans)
{
    const QPointF at(123, 77);
    const QPointF before = canvas.view().toPicture(at);
    wheel(at, 120, Qt::ControlModifier);
    EXPECT_NEAR(canvas.view().magnification(), std::exp2(0.25), 1e-9);
    EXPECT_LE(std::abs((canvas.view().toPicture(at) - before).x()), 1);
    pinch(at, 0.25);
    EXPECT_NEAR(canvas.view().magnification(), 1.25 * std::exp2(0.25), 1e-9);
    EXPECT_LE(std::abs((canvas.view().toPicture(at) - before).x()), 1);
    wheel(at, -1200000, Qt::ControlModifier);
    EXPECT_EQ(canvas.view().magnification(), 0.05);
    canvas.magnify(1);

    const QPointF origin = canvas.view().origin();
    wheel(at, -120, {});
    EXPECT_LT(canvas.view().origin().y(), origin.y());
    const QPointF lower = canvas.view().origin();
    drag({200, 200}, {220, 230}, Qt::MiddleButton);
    EXPECT_EQ(canvas.view().origin() - lower, QPointF(20, 30));
    key(QEvent::KeyPress, Qt::Key_Space);
    drag({200, 200}, {190, 190});
    key(QEvent::KeyRelease, Qt::Key_Space);
    EXPECT_EQ(canvas.view().origin() - lower, QPointF(10, 20));
    key(QEvent::KeyPress, Qt::Key_Space);
    QFocusEvent away(QEvent::FocusOut); // And released somewhere else.
    QApplication::sendEvent(&canvas, &away);
    EXPECT_EQ(count(), 0U);
    drag({200, 200}, {300, 300});
    EXPECT_EQ(count(), 1U);
}

TEST_F(EditorCanvasTest, typesTextsInPlace)
{
    const auto begin = [&](QPointF at) {
        mouse(QEvent::MouseButtonPress, at);
        mouse(QEvent::MouseButtonRelease, at);
        QApplication::processEvents();
    };
    type(0, u"t"_s);
    begin({100, 100});
    type(Qt::Key_A, u"a"_s);
    type(Qt::Key_Return, u"\r"_s, Qt::ShiftModifier);
    type(Qt::Key_Shift);
    type(Qt::Key_V, u"v"_s); // No tool is chosen by it.
    type(Qt::Key_Return, u"\r"_s);
    ASSERT_EQ(count(), 1U);
    EXPECT_EQ(last().text, u"a\nv"_s);
    EXPECT_EQ(last().a, canvas.view().toPicture({100, 100}));
    EXPECT_EQ(canvas.model().tool(), Tool::Text);
    expectUpToDate("typing");

    mouse(QEvent::MouseButtonDblClick, {110, 115});
    mouse(QEvent::MouseButtonRelease, {110, 115});
    type(Qt::Key_B, u"b"_s); // All was selected.
    begin({400, 300}); // To click elsewhere ends it.
    EXPECT_EQ(last().text, u"b"_s);
    EXPECT_FALSE(canvas.model().textPrompt());
    EXPECT_EQ(count(), 1U);

    begin({300, 100});
    type(Qt::Key_C, u"c"_s);
    type(Qt::Key_Escape);
    EXPECT_EQ(count(), 1U);
    begin({300, 100});
    type(Qt::Key_C, u"c"_s);
    canvas.flattened(); // Nothing that was typed is lost.
    EXPECT_EQ(last().text, u"c"_s);
    EXPECT_EQ(count(), 2U);
}

TEST_F(EditorCanvasTest, tellsOfWhatHappens)
{
    int changes = 0, stickers = 0, closes = 0;
    QList<Tool> chosen;
    QObject::connect(&canvas, &EditorCanvas::changed, [&] { ++changes; });
    QObject::connect(&canvas, &EditorCanvas::stickerPlaced, [&] { ++stickers; });
    QObject::connect(&canvas, &EditorCanvas::closeRequested, [&] { ++closes; });
    QObject::connect(&canvas, &EditorCanvas::toolChanged, [&](Tool tool) { chosen.append(tool); });
    type(0, u"S"_s);
    drag({100, 100}, {100, 100});
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(stickers, 1);
    type(Qt::Key_Escape);
    EXPECT_EQ(closes, 0);
    type(Qt::Key_Escape);
    EXPECT_EQ(closes, 1);
    canvas.edit([](CanvasModel& model) { model.setTool(Tool::Blur); });
    EXPECT_EQ(chosen, (QList {Tool::Sticker, Tool::Blur}));
}

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
