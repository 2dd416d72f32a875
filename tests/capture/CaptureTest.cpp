// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "capture/Capture.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

namespace {

const DisplayInfo sharp {1, u"L"_s, QRect(0, 0, 2560, 1600), 2, QRectF(0, 0, 1280, 800)};
const DisplayInfo plain {2, u"R"_s, QRect(2560, 100, 1000, 700), 1, QRectF(2560, 0, 1000, 700)};

Window window(WindowId id, QRect frame, qint64 processId = 1, const QString& name = u"App"_s)
{
    return {id, {}, frame, 0, true, {name.toLower(), name, processId}};
}

QList<WindowId> ids(const QList<Window>& windows)
{
    QList<WindowId> ids;
    for (const auto& each : windows)
        ids.push_back(each.id);
    return ids;
}

} // namespace

TEST(CaptureTest, ordersWindowsFrontToBackAndKeepsUnknownOnesStableBehind)
{
    QList<Window> windows {window(1, {}), window(2, {}), window(3, {}), window(4, {})};
    Capture::sortFrontToBack(windows, {{4, 0}, {2, 7}});
    EXPECT_THAT(ids(windows), testing::ElementsAre(4, 2, 1, 3));
}

TEST(CaptureTest, offersOnlyOrdinaryForeignWindowsLargerThanFortyPoints)
{
    auto dock = window(6, {0, 0, 500, 500}), hidden = dock, own = dock;
    dock.layer = 20;
    hidden.onScreen = false;
    own.application.id = ownApplicationId;
    const QList<Window> windows {window(1, {0, 0, 80, 300}), window(2, {0, 0, 82, 300}),
        window(3, {2600, 200, 41, 41}), window(4, {2600, 200, 41, 40}), window(5, {0, 0, 300, 80}),
        dock, hidden, own};
    EXPECT_THAT(ids(Capture::regionCandidates(windows, {{3, 0}, {2, 1}}, {sharp, plain})),
        testing::ElementsAre(3, 2));

    // A window capture does not mind the height.
    const auto front = Capture::frontWindow(
        {window(1, {0, 0, 900, 900}, 2), window(2, {0, 0, 80, 90}, 1), window(3, {0, 0, 90, 9}, 1)},
        {{1, 0}, {2, 1}, {3, 2}}, {u"other"_s, {}, 1}, {sharp, plain});
    ASSERT_TRUE(front);
    EXPECT_EQ(front->id, 3u);
    const Window unknown = window(1, {0, 0, 900, 900}, 0, u"Remote"_s);
    EXPECT_FALSE(Capture::frontWindow({unknown}, {}, {u"remote"_s, {}, 1}, {sharp}));
    EXPECT_TRUE(Capture::frontWindow({unknown}, {}, {u"remote"_s, {}, 0}, {sharp}));
}

TEST(CaptureTest, convertsBetweenPixelsAndPoints)
{
    EXPECT_EQ(Capture::appKitRect({0, 0, 800, 600}, 900), QRectF(0, 300, 800, 600));
    EXPECT_EQ(Capture::toPoints({0, 0, 1600, 1200}, sharp), QRectF(0, 200, 800, 600));
    EXPECT_EQ(Capture::toPoints({2570, 120, 100, 50}, plain), QRectF(2570, 630, 100, 50));
    EXPECT_EQ(Capture::scaleOf({2500, 0, 100, 100}, {plain, sharp}), 2);
    EXPECT_EQ(Capture::scaleOf({2600, 200, 10, 10}, {sharp, plain}), 1);
    EXPECT_EQ(Capture::scaleOf({9000, 0, 10, 10}, {plain}), 2) << "nowhere";
}

TEST(CaptureTest, findsTheScreenUnderThePointerElseThePrimary)
{
    const QList<DisplayInfo> both {sharp, plain};
    EXPECT_EQ(Capture::screenUnder({2560, 100}, both), plain);
    EXPECT_EQ(Capture::screenUnder({2559, 100}, both), sharp);
    EXPECT_EQ(Capture::screenUnder({2560, 99}, both), sharp) << "in the gap";
    EXPECT_FALSE(Capture::screenUnder({}, {}));
    EXPECT_EQ(Capture::screen(2, both), plain);
    EXPECT_FALSE(Capture::screen(3, both));
}

TEST(CaptureTest, cropsExactlyTheDevicePixelsOfASelection)
{
    EXPECT_EQ(Capture::cropRectangle({100, 100, 200, 50}, {1440, 900}, {2880, 1800}),
        QRect(200, 1500, 400, 100));
    EXPECT_EQ(Capture::cropRectangle({0.4, 0.4, 1, 1}, {10, 10}, {10, 10}), QRect(0, 8, 2, 2))
        << "widened to whole pixels";
    // Any native rectangle survives the way to points and back, at any scale.
    for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0, 3.0})
        for (int x = 0; x < 300; x += 7) {
            const QSize native(1921, 1083);
            const QRect rect(x, 2 * x, 301 - x, 13 + x);
            const double height = native.height() / scale;
            const QRectF points(rect.x() / scale, height - (rect.y() + rect.height()) / scale,
                rect.width() / scale, rect.height() / scale);
            EXPECT_EQ(Capture::cropRectangle(points, QSizeF(native) / scale, native), rect)
                << scale << ' ' << x;
        }
}

TEST(CaptureTest, cutsTheSelectionOutAndNamesTheProgramUnderItsCentre)
{
    QImage image(sharp.native.size(), QImage::Format_RGB32);
    image.fill(Qt::black);
    image.setPixelColor(200, 1600 - 300, Qt::white);
    const FrozenScreen screen {sharp, image};
    const QList<Window> sorted {
        window(1, {0, 1300, 202, 100}, 1, u"Front"_s), window(2, {0, 0, 300, 1600}, 2, u"Back"_s)};
    const auto shot = Capture::crop(screen, {100, 148, 1, 2}, sorted, u"Last"_s);
    ASSERT_TRUE(shot);
    EXPECT_EQ(shot->image.size(), QSize(2, 4));
    EXPECT_EQ(shot->image.pixelColor(0, 0), QColor(Qt::white));
    EXPECT_EQ(shot->scale, 2);
    EXPECT_EQ(shot->area, QRectF(100, 148, 1, 2));
    EXPECT_EQ(shot->app, u"Front"_s);
    EXPECT_EQ(Capture::crop(screen, {110, 148, 2, 2}, sorted, u"Last"_s)->app, u"Back"_s);
    EXPECT_EQ(Capture::crop(screen, {500, 148, 2, 2}, sorted, u"Last"_s)->app, u"Last"_s);
    EXPECT_FALSE(Capture::crop(screen, {1280, 0, 50, 50}, sorted, {}));

    const FrozenScreen right {plain, QImage(plain.native.size(), QImage::Format_RGB32)};
    EXPECT_EQ(Capture::crop(right, {1, 2, 30, 40}, {}, {})->area, QRectF(2561, 2, 30, 40));
}
