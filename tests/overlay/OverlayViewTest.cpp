// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "overlay/OverlayView.h"
#include "overlay/HudLayout.h"

#include <gtest/gtest.h>

#include <random>

using namespace Qt::StringLiterals;

namespace {

/// A picture that differs everywhere.
FrozenScreen screenOf(QSize size, double scale)
{
    FrozenScreen screen;
    screen.display.native = QRect({}, size);
    screen.display.scale = scale;
    screen.display.points = QRectF({}, QSizeF(size) / scale);
    screen.image = QImage(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            screen.image.setPixel(x, y, qRgb(x * 7 + y, y * 5 + 3 * x, x ^ y));
    return screen;
}

QImage canvas(const OverlayView& view)
{
    QImage image(view.size(), QImage::Format_RGB32);
    image.fill(Qt::magenta);
    return image;
}

QImage painted(OverlayView& view, const OverlayScene& scene)
{
    QImage image = canvas(view);
    view.setScene(scene);
    view.paint(image, view.everything());
    return image;
}

OverlayStyle plain()
{
    OverlayStyle style;
    style.crosshair = style.magnifier = false;
    return style;
}

/// As somebody moves about, in steps of a few pixels or across the screen.
OverlayScene randomScene(std::mt19937& random, QSize screen, const OverlayScene& before)
{
    const auto number = [&random](int most) { return int(random() % unsigned(most)); };
    OverlayScene scene = before;
    const bool far = number(4) == 0;
    if (far || !scene.pointer) {
        scene.pointer = QPoint(number(screen.width()), number(screen.height()));
        scene.dragging = number(2) == 0;
    } else {
        *scene.pointer += QPoint(number(9) - 4, number(9) - 4);
        scene.pointer->rx() = std::clamp(scene.pointer->x(), 0, screen.width() - 1);
        scene.pointer->ry() = std::clamp(scene.pointer->y(), 0, screen.height() - 1);
    }
    if (scene.dragging)
        scene.selection = QRect(QPoint(60, 80), *scene.pointer).normalized();
    else if (far)
        scene.selection = number(2) ? QRect(30 * number(4), 20, 150, 170) : QRect();
    if (number(15) == 0)
        scene.pointer.reset();
    return scene;
}

} // namespace

TEST(OverlayViewTest, paintsTheSamePieceByPieceAsAllAtOnce)
{
    for (const double scale : {1.0, 1.5, 2.0}) {
        const auto screen = screenOf(QSize(400, 300) * scale, scale);
        OverlayView view(screen, {}, u"Select the text to copy"_s);
        OverlayView fresh(screen, {}, u"Select the text to copy"_s);
        QImage shown = painted(view, {});
        std::mt19937 random(20);
        OverlayScene scene;
        for (int step = 0; step < 60; ++step) {
            scene = randomScene(random, view.size(), scene);
            const QRegion changed = view.setScene(scene);
            view.paint(shown, changed);
            ASSERT_EQ(shown, painted(fresh, scene)) << "step " << step << " at " << scale;
        }
    }
}

TEST(OverlayViewTest, paintsLittleForASmallMove)
{
    OverlayView view(screenOf({3840, 2160}, 1), {}, {});
    view.setScene({{500, 400, 1500, 900}, true, QPoint(2000, 1300)});
    qint64 pixels = 0;
    for (const QRect& rect : view.setScene({{500, 400, 1519, 919}, true, QPoint(2019, 1319)}))
        pixels += qint64(rect.width()) * rect.height();
    EXPECT_LT(pixels, 250'000);
    EXPECT_TRUE(view.setScene({{500, 400, 1519, 919}, true, QPoint(2019, 1319)}).isEmpty());
}

TEST(OverlayViewTest, dimsAllButTheSelectionAndFramesIt)
{
    const auto screen = screenOf({800, 600}, 2);
    OverlayView view(screen, plain(), {});
    const QRect selection(201, 301, 300, 200);
    for (const bool dragging : {true, false}) {
        const QImage image = painted(view, {selection, dragging, {}});
        EXPECT_EQ(image.copy(selection), screen.image.copy(selection));
        const QPoint outside(50, 550);
        EXPECT_NEAR(qRed(image.pixel(outside)), 0.58 * qRed(screen.image.pixel(outside)), 1.5);
        EXPECT_NEAR(qGreen(image.pixel(outside)), 0.58 * qGreen(screen.image.pixel(outside)), 1.5);
        EXPECT_NEAR(qBlue(image.pixel(outside)), 0.58 * qBlue(screen.image.pixel(outside)), 1.5);

        // Two points of accent around it, in dashes of six and gaps of four for a window.
        int accents = 0;
        for (int x = selection.left(); x < selection.left() + 200; ++x)
            accents += image.pixelColor(x, selection.top() - 1) == plain().accent;
        EXPECT_EQ(accents, dragging ? 200 : 120);
        EXPECT_EQ(image.pixelColor(selection.left() - 4, selection.top() - 4), plain().accent);
        EXPECT_NE(image.pixelColor(selection.left() - 5, selection.top() - 5), plain().accent);
    }
}

TEST(OverlayViewTest, magnifiesThePixelsAroundThePointer)
{
    const auto screen = screenOf({800, 600}, 2);
    OverlayStyle style = plain();
    style.magnifier = true;
    OverlayView view(screen, style, {});
    for (const QPoint pointer : {QPoint(300, 200), QPoint(799, 599), QPoint(0, 0)}) {
        const QImage image = painted(view, {{}, true, pointer});
        const QRect lens = HudLayout::lens(pointer, view.size(), 2);
        for (int dy = -7; dy <= 7; ++dy)
            for (int dx = -7; dx <= 7; ++dx) {
                const bool corner = std::abs(dx) > 5 && std::abs(dy) > 5;
                const QPoint source = pointer + QPoint(dx, dy);
                const QPoint block = lens.center() + QPoint(dx, dy) * 16;
                if (!corner && screen.image.rect().contains(source)) {
                    ASSERT_EQ(image.pixel(block), screen.image.pixel(source)) << dx << "," << dy;
                }
            }
        EXPECT_EQ(image.pixelColor(lens.center() - QPoint(7, 7)), QColor(Qt::white));
    }
}

TEST(HudLayoutTest, keepsTheMagnifierOnTheScreen)
{
    const QSize screen(1000, 800);
    EXPECT_EQ(HudLayout::lens({100, 100}, screen, 1), QRect(124, 124, 120, 120));
    EXPECT_EQ(HudLayout::lens({856, 626}, screen, 1), QRect(880, 650, 120, 120));
    EXPECT_EQ(HudLayout::lens({857, 100}, screen, 1), QRect(713, 124, 120, 120));
    EXPECT_EQ(HudLayout::lens({100, 627}, screen, 1), QRect(124, 483, 120, 120));
    EXPECT_EQ(HudLayout::lens({995, 795}, screen, 1), QRect(851, 651, 120, 120));
    EXPECT_EQ(HudLayout::lens({100, 100}, screen, 2), QRect(148, 148, 240, 240));
    EXPECT_EQ(HudLayout::lens({100, 100}, screen, 1.3).width() % 15, 0); // Equal blocks.
}

TEST(HudLayoutTest, namesPixels)
{
    EXPECT_EQ(HudLayout::sizeText({640, 7}), u"640 × 7"_s);
    EXPECT_EQ(HudLayout::pixelText({812, 440}, 0xff1e90ff), u"812, 440   #1E90FF"_s);
    EXPECT_EQ(HudLayout::pixelText({0, 0}, 0x00000000), u"0, 0   #000000"_s);
}

TEST(PillTest, staysWithinTheViewAndKeepsItsWidth)
{
    const Pill pill(Pill::font(12), Pill::Digits::EqualWidth);
    const QSizeF size = pill.size(u"1111 × 777"_s);
    EXPECT_EQ(size, pill.size(u"2048 × 960"_s));
    const QRectF view(0, 0, 400, 300);
    using enum Pill::Edge;
    EXPECT_EQ(Pill::placed({50, 100}, Bottom, {80, 20}, view), QRectF(50, 80, 80, 20));
    EXPECT_EQ(Pill::placed({50, 100}, Top, {80, 20}, view), QRectF(50, 100, 80, 20));
    EXPECT_EQ(Pill::placed({-9, 10}, Bottom, {80, 20}, view), QRectF(6, 6, 80, 20));
    EXPECT_EQ(Pill::placed({390, 290}, Top, {80, 20}, view), QRectF(314, 274, 80, 20));
    EXPECT_EQ(Pill::placed({50, 100}, Top, {500, 20}, view), QRectF(6, 100, 500, 20));
}
