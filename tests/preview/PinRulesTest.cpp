// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "preview/PinRules.h"

#include <gmock/gmock.h>

using namespace PinRules;

namespace {

constexpr QSizeF image(400, 300);

} // namespace

TEST(PinRulesTest, opensNoLargerThanTheCaptureNorThanMostOfTheScreen)
{
    struct Case {
        QSizeF image, visible;
        double zoom;
    };
    for (const auto& [size, visible, zoom] : {
             Case {{2000, 1500}, {1440, 900}, 0.36}, // By its height.
             Case {{2880, 300}, {1440, 900}, 0.3}, // By its width.
             Case {{800, 500}, {1440, 900}, 1}, Case {{864, 540}, {1440, 900}, 1},
             Case {{30000, 100}, {1440, 900}, 0.1}, // As small as pins become.
         })
        EXPECT_DOUBLE_EQ(initialZoom(size, visible), zoom) << size.width();
}

TEST(PinRulesTest, zoomsInEqualStepsBetweenItsLimitsWithTheTopLeftCornerFixed)
{
    EXPECT_DOUBLE_EQ(zoomAfter(1, Wheel::Enlarge), 1.06);
    EXPECT_DOUBLE_EQ(zoomAfter(1, Wheel::Reduce), 1 / 1.06);
    EXPECT_DOUBLE_EQ(zoomAfter(1, Wheel::LessOpaque), 1);
    double zoom = 1;
    for (int i = 0; i < 100; ++i)
        zoom = zoomAfter(zoom, Wheel::Enlarge);
    EXPECT_EQ(zoom, 6);
    for (int i = 0; i < 100; ++i)
        zoom = zoomAfter(zoom, Wheel::Reduce);
    EXPECT_EQ(zoom, 0.1);
    EXPECT_EQ(zoomed({50, 60, 400, 300}, image, 2), QRectF(50, 60, 800, 600));
}

TEST(PinRulesTest, fadesInEqualStepsBetweenItsLimits)
{
    double opacity = 1;
    for (int i = 1; i <= 16; ++i) {
        opacity = opacityAfter(opacity, Wheel::LessOpaque);
        EXPECT_DOUBLE_EQ(opacity, 1 - 0.05 * i);
    }
    EXPECT_EQ(opacityAfter(opacity, Wheel::LessOpaque), 0.2);
    for (int i = 0; i < 30; ++i)
        opacity = opacityAfter(opacity, Wheel::MoreOpaque);
    EXPECT_EQ(opacity, 1);
    EXPECT_EQ(opacityAfter(0.5, Wheel::Enlarge), 0.5);
}

TEST(PinRulesTest, takesOneStepForAnEventWhateverItsSizeAndAxis)
{
    struct Case {
        QPoint delta;
        Qt::KeyboardModifiers modifiers;
        Wheel step;
    };
    for (const auto& [delta, modifiers, step] : {
             Case {{0, 120}, {}, Wheel::Enlarge},
             Case {{0, 1}, Qt::ShiftModifier, Wheel::Enlarge},
             Case {{0, -960}, {}, Wheel::Reduce},
             Case {{120, 0}, {}, Wheel::Nothing}, // Tilted, not turned.
             Case {{0, 0}, {}, Wheel::Nothing}, // A touchpad that is only touched.
             Case {{120, 0}, Qt::AltModifier, Wheel::MoreOpaque},
             Case {{-120, 0}, Qt::AltModifier, Wheel::LessOpaque},
             Case {{0, 120}, Qt::AltModifier, Wheel::MoreOpaque},
             Case {{0, 120}, Qt::ControlModifier, Wheel::MoreOpaque},
             Case {{0, -120}, Qt::ControlModifier, Wheel::LessOpaque},
             Case {{0, 0}, Qt::ControlModifier, Wheel::Nothing},
         })
        EXPECT_EQ(wheelStep(delta, modifiers), step) << delta.x() << " " << delta.y();
}

TEST(PinRulesTest, isHeldAtItsEdgesAndCorners)
{
    const QSizeF frame(400, 300);
    EXPECT_EQ(edgesAt({200, 150}, frame), Qt::Edges());
    EXPECT_EQ(edgesAt({2, 150}, frame), Qt::LeftEdge);
    EXPECT_EQ(edgesAt({398, 150}, frame), Qt::RightEdge);
    EXPECT_EQ(edgesAt({200, 2}, frame), Qt::TopEdge);
    EXPECT_EQ(edgesAt({398, 290}, frame), Qt::RightEdge | Qt::BottomEdge);
    EXPECT_EQ(edgesAt({10, 2}, frame), Qt::LeftEdge | Qt::TopEdge);
    EXPECT_EQ(edgesAt({10, 10}, frame), Qt::Edges());
    EXPECT_EQ(edgesAt({15, 10}, {30, 20}), Qt::Edges()) << "can still be moved";
    EXPECT_EQ(edgesAt({29, 19}, {30, 20}), Qt::RightEdge | Qt::BottomEdge);
}

TEST(PinRulesTest, keepsItsProportionsAndTheOppositeEdgeWhenResized)
{
    const QRectF frame(100, 100, 400, 300);
    struct Case {
        Qt::Edges edges;
        QPointF drag;
        QRectF result;
    };
    for (const auto& [edges, drag, result] : {
             Case {Qt::RightEdge, {200, 7}, {100, 100, 600, 450}},
             Case {Qt::BottomEdge, {9, 150}, {100, 100, 600, 450}},
             Case {Qt::LeftEdge, {100, 0}, {200, 100, 300, 225}},
             Case {Qt::TopEdge, {0, -150}, {100, -50, 600, 450}},
             Case {Qt::RightEdge | Qt::BottomEdge, {200, 0}, {100, 100, 600, 450}},
             Case {Qt::LeftEdge | Qt::TopEdge, {0, -150}, {-100, -50, 600, 450}},
             Case {Qt::RightEdge, {-1000, 0}, {100, 100, 40, 30}}, // A tenth, the least.
             Case {Qt::RightEdge, {9000, 0}, {100, 100, 2400, 1800}}, // Sixfold, the most.
         })
        EXPECT_EQ(resized(frame, edges, drag, image), result) << drag.x() << " " << drag.y();
}

TEST(PinRulesTest, staysWithinReach)
{
    const QList<QRect> screens {{0, 0, 1280, 800}, {1280, 50, 1024, 768}};
    const QRectF seen(1200, 700, 400, 300);
    EXPECT_EQ(reachable(seen, screens), seen);
    EXPECT_EQ(reachable({-390, 100, 400, 300}, screens), QRectF(-376, 100, 400, 300));
    EXPECT_EQ(reachable({-900, -900, 400, 300}, screens), QRectF(-376, -276, 400, 300));
    EXPECT_EQ(reachable({2400, 900, 400, 300}, screens), QRectF(2280, 794, 400, 300));
    EXPECT_EQ(reachable({-15, 10, 10, 8}, screens), QRectF(0, 10, 10, 8));
}
