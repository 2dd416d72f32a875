// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "preview/Pins.h"

#include "tests/gallery/Gallery.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class PinWindowTest : public testing::Test {
protected:
    PinWindowTest()
    {
        ShotActions actions;
        actions.edit = [this](const FinishedCapture& capture) { edited << capture; };
        actions.copy = [this](const FinishedCapture& capture) {
            copied << capture;
            return ShotActions::Told::answered(u""_s);
        };
        pins = std::make_unique<Pins>(Surroundings {world.themes, world.surfaces}, actions);
    }

    PinWindow& open(QSize pixels = {320, 200}, double scale = 1)
    {
        return pins->show({GalleryWorld::picture(pixels), scale, u"Terminal"_s, {}});
    }

    static void wheel(PinWindow& pin, QPoint delta, Qt::KeyboardModifiers modifiers = {})
    {
        QWheelEvent event({60, 60}, pin.mapToGlobal(QPoint(60, 60)), {}, delta, Qt::NoButton,
            modifiers, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&pin, &event);
    }
    static PinImageView& viewOf(PinWindow& pin) { return *pin.findChild<PinImageView*>(); }

    static QAction* menuItem(PinWindow& pin, const QString& text)
    {
        QContextMenuEvent event(
            QContextMenuEvent::Mouse, {60, 60}, pin.mapToGlobal(QPoint(60, 60)));
        QApplication::sendEvent(&pin, &event);
        for (auto* action : pin.findChild<QMenu*>()->actions())
            if (action->text() == text)
                return action;
        return nullptr;
    }

    GalleryWorld world;
    QList<FinishedCapture> edited, copied;
    std::unique_ptr<Pins> pins;
};

} // namespace

TEST_F(PinWindowTest, hasTheKeyboardWhileItIsOpen)
{
    auto& pin = open();
    EXPECT_EQ(world.surfaces.focused, pin.windowHandle());
    auto& other = open();
    EXPECT_EQ(pins->pins(), (QList {&pin, &other}));
    EXPECT_NE(pin.frame().topLeft(), other.frame().topLeft());
    QTest::keyClick(&other, Qt::Key_A);
    EXPECT_EQ(pins->pins().size(), 2);
    QTest::keyClick(&other, Qt::Key_Escape);
    EXPECT_EQ(pins->pins(), QList {&pin});
    EXPECT_EQ(world.surfaces.focused, nullptr);
    QTest::mouseDClick(&viewOf(pin), Qt::LeftButton, {}, {50, 50});
    EXPECT_TRUE(pins->pins().isEmpty());
}

TEST_F(PinWindowTest, zoomsAndFadesByTheWheel)
{
    auto& pin = open();
    const QPointF corner = pin.frame().topLeft();
    EXPECT_EQ(pin.zoom(), 1);
    wheel(pin, {0, 120});
    EXPECT_DOUBLE_EQ(pin.zoom(), 1.06);
    EXPECT_EQ(pin.frame(), QRectF(corner, QSizeF(320, 200) * 1.06));
    EXPECT_EQ(viewOf(pin).size(), QSize(340, 212));
    wheel(pin, {120, 0}, Qt::AltModifier);
    EXPECT_DOUBLE_EQ(pin.zoom(), 1.06);
    pin.actualSize();
    EXPECT_EQ(pin.frame(), QRectF(corner, QSizeF(320, 200)));
    EXPECT_EQ(viewOf(pin).mapToGlobal(QPoint()), corner.toPoint());
}

TEST_F(PinWindowTest, neverTakesAWindowLargerThanTheDesktop)
{
    auto& pin = open({4000, 3000}, 2);
    EXPECT_LT(pin.zoom(), 1);
    pin.resizeTo(99);
    EXPECT_EQ(pin.zoom(), 6);
    EXPECT_EQ(pin.frame().size(), QSizeF(12000, 9000));
    const QRect desktop = QGuiApplication::primaryScreen()->geometry();
    EXPECT_TRUE(desktop.contains(pin.geometry()));
    EXPECT_EQ(viewOf(pin).mapToGlobal(QPoint()), pin.frame().topLeft().toPoint());
}

TEST_F(PinWindowTest, isMovedByItsPictureAndResizedByItsEdges)
{
    auto& pin = open();
    const QRectF before = pin.frame();
    auto& view = viewOf(pin);
    const auto drag = [&view](QPoint from, QPoint by) {
        const QPoint start = view.mapToGlobal(from);
        QTest::mousePress(&view, Qt::LeftButton, {}, from);
        for (const QPoint& to : {start + by / 2, start + by}) {
            QMouseEvent move(
                QEvent::MouseMove, view.mapFromGlobal(to), to, Qt::NoButton, Qt::LeftButton, {});
            QApplication::sendEvent(&view, &move);
        }
        QTest::mouseRelease(&view, Qt::LeftButton, {}, view.mapFromGlobal(start + by));
    };
    drag({100, 100}, {-40, 30});
    EXPECT_EQ(pin.frame(), before.translated(-40, 30));
    drag({318, 100}, {160, 3});
    EXPECT_EQ(pin.frame(), QRectF(before.topLeft() + QPointF(-40, 30), QSizeF(480, 300)));
    EXPECT_DOUBLE_EQ(pin.zoom(), 1.5);
    drag({240, 150}, {-9000, -9000});
    EXPECT_TRUE(pin.frame().intersects(QGuiApplication::primaryScreen()->geometry()));
}

TEST_F(PinWindowTest, offersWhatCanBeDoneWithItInItsMenu)
{
    auto& pin = open();
    pin.resizeTo(2);
    menuItem(pin, u"Actual Size"_s)->trigger();
    EXPECT_EQ(pin.zoom(), 1);
    menuItem(pin, u"Copy"_s)->trigger();
    ASSERT_EQ(copied.size(), 1);
    EXPECT_EQ(copied[0].shot.image.size(), QSize(320, 200));
    QStringList texts;
    for (auto* action : pin.findChild<QMenu*>()->actions())
        texts << action->text();
    EXPECT_EQ(texts, (QStringList {u"Copy"_s, u"Open in Editor"_s, u"Actual Size"_s, u"Close"_s}));
    menuItem(pin, u"Open in Editor"_s)->trigger();
    ASSERT_EQ(edited.size(), 1);
    EXPECT_TRUE(edited[0].path.isEmpty() && edited[0].historyId.isEmpty());
    EXPECT_TRUE(pins->pins().isEmpty()) << "the editor has it now";

    menuItem(open(), u"Close"_s)->trigger();
    EXPECT_TRUE(pins->pins().isEmpty());
}

TEST_F(PinWindowTest, showsItsPixelsAsTheyAreAndRoundsItsCorners)
{
    auto& pin = open({300, 200});
    const QImage picture = GalleryWorld::picture({300, 200});
    const QImage shown = viewOf(pin).grab().toImage().convertToFormat(QImage::Format_RGB32);
    ASSERT_EQ(shown.size(), picture.size());
    const QRect inside(8, 8, 284, 184);
    EXPECT_EQ(shown.copy(inside), picture.convertToFormat(QImage::Format_RGB32).copy(inside));

    QImage whole(pin.size(), QImage::Format_ARGB32_Premultiplied);
    whole.fill(Qt::transparent);
    pin.render(&whole, {}, {}, QWidget::DrawChildren);
    const QPoint corner = viewOf(pin).pos();
    EXPECT_LT(qAlpha(whole.pixel(corner)), 200);
    EXPECT_GT(qAlpha(whole.pixel(corner - QPoint(0, 12) + QPoint(150, 0))), 5) << "no shadow";
    EXPECT_EQ(qAlpha(whole.pixel(corner + QPoint(8, 8))), 255);
}

TEST_F(PinWindowTest, reducesByTheMeanOfWhatIsThere)
{
    QImage stripes(400, 100, QImage::Format_RGB32);
    for (int y = 0; y < 100; ++y)
        for (int x = 0; x < 400; ++x)
            stripes.setPixel(x, y, x % 4 == 0 ? 0xffffffff : 0xff000000);
    PinPicture picture(stripes);
    for (const QSize size : {QSize(100, 25), {50, 12}, {173, 43}}) {
        const QImage reduced = picture.brush(size).textureImage();
        ASSERT_EQ(reduced.size(), size);
        double sum = 0;
        for (int x = 0; x < size.width(); ++x)
            sum += qRed(reduced.pixel(x, size.height() / 2));
        EXPECT_NEAR(sum / size.width(), 255 / 4.0, 6) << size.width();
    }
    EXPECT_EQ(picture.brush({400, 100}).textureImage(), stripes) << "exact at its own size";
    const QBrush enlarged = picture.brush({1200, 300});
    EXPECT_EQ(enlarged.textureImage().size(), stripes.size()) << "pixels stay squares";
    EXPECT_EQ(enlarged.transform().m11(), 3);
}
