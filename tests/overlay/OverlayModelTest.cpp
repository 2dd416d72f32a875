// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "overlay/OverlayModel.h"
#include "overlay/OverlayAccessible.h"
#include "overlay/OverlayGeometry.h"

#include <gmock/gmock.h>

#include <QPoint>

using namespace OverlayGeometry;
using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

FrozenScreen screenAt(QRect native, double scale)
{
    FrozenScreen screen;
    screen.display.native = native;
    screen.display.scale = scale;
    screen.display.points = QRectF(QPointF(native.topLeft()), QSizeF(native.size()) / scale);
    screen.image = QImage(native.size(), QImage::Format_RGB32);
    return screen;
}

/// A sharp screen and an ordinary one right of it, with windows on both.
RegionQuestion question()
{
    return {{screenAt({0, 0, 800, 600}, 2), screenAt({800, 100, 400, 300}, 1)},
        {QRect(100, 100, 200, 200), QRect(50, 50, 300, 300), QRect(700, 150, 300, 200)}, {}};
}

OverlayModel model(QPoint pointer = {})
{
    return OverlayModel(question(), pointer);
}

std::optional<RegionResult> taken(const OverlayModel& model)
{
    const auto& outcome = model.outcome();
    return outcome && *outcome ? std::optional(**outcome) : std::nullopt;
}

bool isCancelled(const OverlayModel& model)
{
    return model.outcome() && !*model.outcome() && model.outcome()->error().isCancelled();
}

} // namespace

TEST(OverlayGeometryTest, dragsRectanglesAndSquaresWithinTheScreen)
{
    const QSize screen(800, 600);
    struct Case {
        QPoint start, pointer;
        QRect free, square;
    };
    const Case cases[] = {
        {{100, 100}, {150, 80}, {100, 80, 50, 20}, {100, 50, 50, 50}},
        {{100, 100}, {90, 170}, {90, 100, 10, 70}, {30, 100, 70, 70}},
        {{100, 100}, {100, 170}, {100, 100, 0, 70}, {100, 100, 70, 70}},
        {{30, 30}, {10, 200}, {10, 30, 20, 170}, {0, 30, 30, 170}}, // Cut off.
        {{700, 500}, {2000, -7}, {700, 0, 100, 500}, {700, 0, 100, 500}},
        {{700, 550}, {799, 599}, {700, 550, 100, 50}, {700, 550, 100, 50}}, // Up to the edge.
        {{0, 0}, {0, 0}, {0, 0, 0, 0}, {0, 0, 0, 0}},
    };
    for (const auto& [start, pointer, free, square] : cases) {
        EXPECT_EQ(dragged(start, pointer, Shape::Free, screen), free);
        EXPECT_EQ(dragged(start, pointer, Shape::Square, screen), square);
    }
}

TEST(OverlayGeometryTest, tellsADragFromAClickInPoints)
{
    EXPECT_TRUE(isDrag({100, 2}, 1));
    EXPECT_TRUE(isDrag({0, 4}, 1));
    EXPECT_FALSE(isDrag({3, 3}, 1));
    EXPECT_FALSE(isDrag({7, 7}, 2));
    EXPECT_TRUE(isDrag({8, 0}, 2));
}

TEST(OverlayGeometryTest, offersTheVisiblePartsOfWindowsOnEachScreen)
{
    const auto left = screenAt({0, 0, 800, 600}, 2);
    const auto right = screenAt({800, 100, 400, 300}, 1);
    const QList<QRect> windows {
        {700, 150, 300, 200}, // On both screens.
        {760, 0, 500, 500}, // No more than 20 points on the left one, all of the right one.
        {759, 0, 60, 300}, // More than 20 points on the left one, no more on the right one.
        {780, -50, 900, 900}, // Exactly behind another on the right one.
        {5000, 0, 100, 100},
    };
    EXPECT_THAT(
        windowsOn(left, windows), ElementsAre(QRect(700, 150, 100, 200), QRect(759, 0, 41, 300)));
    EXPECT_THAT(
        windowsOn(right, windows), ElementsAre(QRect(0, 50, 200, 200), QRect(0, 0, 400, 300)));
}

TEST(OverlayGeometryTest, answersInPointsFromTheFootOfTheScreen)
{
    const auto screen = screenAt({800, 100, 300, 200}, 1.5); // 200 by 133.33 points.
    EXPECT_EQ(toPoints({0, 0, 300, 200}, screen), QRectF(0, 0, 200, 200 / 1.5));
    EXPECT_EQ(toPoints({30, 20, 15, 60}, screen), QRectF(20, 80, 10, 40));
    EXPECT_EQ(toPoints({300, 50, 0, 150}, screen), QRectF(299 / 1.5, 0, 1 / 1.5, 100));
}

TEST(OverlayModelTest, takesWhatIsDragged)
{
    auto selection = model();
    selection.press({900, 200});
    selection.move({850, 150});
    EXPECT_EQ(selection.scene(1), (OverlayScene {{50, 50, 50, 50}, true, QPoint(50, 50)}));
    EXPECT_EQ(selection.scene(0), OverlayScene());
    selection.move({300, 250}); // The other screen: the drag stays on its own.
    EXPECT_EQ(selection.scene(1), (OverlayScene {{0, 100, 100, 50}, true, {}}));
    selection.release({700, 90});
    ASSERT_TRUE(taken(selection));
    EXPECT_EQ(taken(selection)->screenIndex, 1);
    EXPECT_EQ(taken(selection)->rect, QRectF(0, 200, 100, 100));
    selection.key(OverlayKey::Cancel); // Too late.
    EXPECT_TRUE(taken(selection));
}

TEST(OverlayModelTest, takesTheFrontMostWindowByAClick)
{
    auto selection = model();
    EXPECT_TRUE(selection.scene(0).selection.isEmpty());
    selection.move({150, 150});
    EXPECT_EQ(selection.scene(0), (OverlayScene {{100, 100, 200, 200}, false, QPoint(150, 150)}));
    selection.press({600, 550});
    selection.release({603, 553}); // Where no window is.
    EXPECT_FALSE(selection.outcome());
    EXPECT_FALSE(selection.scene(0).dragging);
    selection.release({150, 150}); // Of a button that was pressed before the selection began.
    EXPECT_FALSE(selection.outcome());
    selection.press({60, 60});
    selection.release({60, 62});
    ASSERT_TRUE(taken(selection));
    EXPECT_EQ(taken(selection)->rect, QRectF(25, 125, 150, 150));
}

TEST(OverlayModelTest, obeysKeys)
{
    const auto after = [](std::initializer_list<OverlayKey> keys, QPoint pointer) {
        auto selection = model({500, 500});
        selection.move(pointer);
        for (const auto key : keys)
            selection.key(key);
        return selection;
    };
    using enum OverlayKey;
    const QPoint nowhere(500, 500), inWindow(340, 200), onSecond(1100, 150);
    EXPECT_FALSE(after({Take}, nowhere).outcome());
    EXPECT_EQ(taken(after({Take}, inWindow))->rect, QRectF(25, 125, 150, 150));
    EXPECT_EQ(taken(after({WholeScreen}, onSecond))->rect, QRectF(0, 0, 400, 300));
    EXPECT_EQ(taken(after({WholeScreen}, onSecond))->screenIndex, 1);
    EXPECT_EQ(taken(after({FirstCorner, WholeScreen}, nowhere))->rect, QRectF(0, 0, 400, 300));
    EXPECT_TRUE(isCancelled(after({Cancel}, onSecond)));
    EXPECT_TRUE(isCancelled(after({FirstCorner, Cancel}, nowhere)));

    EXPECT_EQ(after({NextWindow}, nowhere).scene(0).selection, QRect(100, 100, 200, 200));
    EXPECT_EQ(after({PreviousWindow}, nowhere).scene(0).selection, QRect(700, 150, 100, 200));
    EXPECT_EQ(after({NextWindow, NextWindow, NextWindow, NextWindow}, nowhere).scene(0).selection,
        QRect(100, 100, 200, 200));
    EXPECT_EQ(
        after({NextWindow, PreviousWindow}, inWindow).scene(0).selection, QRect(50, 50, 300, 300));

    auto keyboard = after({FirstCorner}, nowhere);
    keyboard.key(Take); // Nothing yet.
    EXPECT_FALSE(keyboard.outcome());
    EXPECT_EQ(keyboard.stepped({-1, 0}), QPoint(499, 500));
    EXPECT_EQ(keyboard.stepped({999, 10}), QPoint(799, 510)); // Stays on the screen.
    keyboard.move(keyboard.stepped({10, 10}));
    keyboard.key(Take);
    EXPECT_EQ(taken(keyboard)->rect, QRectF(250, 45, 5, 5));
}

TEST(OverlayModelTest, abandonsADragBeforeItCancels)
{
    auto selection = model();
    selection.press({400, 400});
    selection.move({500, 500});
    selection.pressRight();
    EXPECT_FALSE(selection.outcome());
    EXPECT_FALSE(selection.scene(0).dragging);
    selection.release({500, 500});
    EXPECT_FALSE(selection.outcome());
    selection.pressRight();
    EXPECT_TRUE(isCancelled(selection));
}

TEST(OverlayAccessibleTest, tellsTheSelectionElseThePointer)
{
    EXPECT_EQ(OverlayAccessible::told({}), QString());
    EXPECT_EQ(OverlayAccessible::told({{}, false, QPoint(12, 34)}), u"12, 34"_s);
    EXPECT_EQ(OverlayAccessible::told({{120, 80, 640, 400}, true, QPoint(12, 34)}),
        u"640 × 400 at 120, 80"_s);
}
