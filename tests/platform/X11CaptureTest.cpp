// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/Bitmap.h"
#include "platform/Platform.h"
#include "tests/TestFiles.h"
#include "tests/desktop/DesktopTest.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

namespace {

QImage toImage(const Result<Frozen>& frozen)
{
    if (!frozen) {
        ADD_FAILURE() << frozen.error().message.toStdString();
        return {};
    }
    auto bitmap = Bitmap::read(**frozen);
    EXPECT_TRUE(bitmap);
    const auto format = bitmap->format() == PixelFormat::Rgb32
        ? QImage::Format_RGB32
        : QImage::Format_ARGB32_Premultiplied;
    const auto* bytes = reinterpret_cast<const uchar*>(bitmap->row(0));
    const QSize size = bitmap->size();
    return QImage(bytes, size.width(), size.height(), size.width() * 4, format)
        .convertToFormat(QImage::Format_ARGB32_Premultiplied) // Opaque where it is RGB32.
        .copy();
}

QImage opaque(const QImage& image)
{
    return image.convertToFormat(QImage::Format_RGB32)
        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

CapturePlatform platform(Residency residency = Residency::OneShot)
{
    auto made = makeCapturePlatform(residency);
    EXPECT_TRUE(made) << made.error().message.toStdString();
    return *std::move(made);
}

QImage area(CapturePlatform& platform, QRect native, QList<WindowId> excluded = {},
    Pointer pointer = Pointer::Hidden)
{
    return toImage(platform.capture->area(native, excluded, pointer).wait());
}

QImage window(CapturePlatform& platform, WindowId id, WindowShadow shadow = WindowShadow::Dropped)
{
    return toImage(platform.capture->window(id, shadow, Pointer::Hidden).wait());
}

const Window* find(const QList<Window>& windows, WindowId id)
{
    for (const auto& window : windows)
        if (window.id == id)
            return &window;
    return nullptr;
}

DesktopOptions composited()
{
    return {.compositor = Compositor::Picom};
}

using X11CaptureTest = DesktopTest<>;
using CompositedCaptureTest = DesktopTest<composited>;
using TwoMonitorCaptureTest = DesktopTest<twoMonitors<2, 1>>;

/// Paints the root window as desktops without a wallpaper do: nothing tells of it.
void setRootColour(const XDisplay& display, std::uint32_t colour)
{
    xcb_connection_t* xcb = display.connection();
    const xcb_window_t root = display.screen().root;
    xcb_delete_property(xcb, root, display.atom("_XROOTPMAP_ID"));
    xcb_change_window_attributes(xcb, root, XCB_CW_BACK_PIXEL, &colour);
    xcb_clear_area(xcb, 0, root, 0, 0, 0, 0);
    xcb_flush(xcb);
}

/// What holds with and without a compositing manager.
void leavesOwnWindowsOut(const VirtualDesktop& desktop)
{
    const auto below = openWindow(desktop,
        {u"--pattern"_s, u"3"_s, u"--geometry"_s, u"200,150,500x400"_s, u"--shaped"_s,
            u"--override-redirect"_s});
    const auto translucent = openWindow(desktop,
        {u"--pattern"_s, u"4"_s, u"--geometry"_s, u"350,250,300x300"_s, u"--argb"_s,
            u"--override-redirect"_s});
    auto resident = platform(Residency::Resident);
    const QRect everything(0, 0, 1280, 800);
    const auto managed = openWindow(
        desktop, {u"--own"_s, u"--geometry"_s, u"100,100,400x300"_s, u"--colour"_s, u"#ff0000"_s});
    const auto card = openWindow(
        desktop, {u"--own"_s, u"--override-redirect"_s, u"--geometry"_s, u"500,300,600x450"_s});

    const auto windows = resident.capture->windows();
    ASSERT_TRUE(windows);
    const auto own = ownWindows(*windows);
    EXPECT_THAT(own, testing::UnorderedElementsAre(managed.id, card.id));
    const QImage without = area(resident, everything, own);
    EXPECT_EQ(area(resident, QRect(450, 320, 101, 57), own), without.copy(450, 320, 101, 57));
    // Waits, as a compositing manager shows late what windows have painted.
    EXPECT_TRUE(waitFor([&] { return opaque(desktop.rootPixels()) != without; }));
    for (const auto& each : {&managed, &card})
        each->client->stop();
    EXPECT_TRUE(waitFor([&] { return opaque(desktop.rootPixels()) == without; }));
    for (const auto& each : {&below, &translucent})
        each->client->stop();
}

} // namespace

TEST_F(X11CaptureTest, takesThePixelsThatAnotherClientReads)
{
    desktop().setRootPicture(patternOf({1280, 800}));
    const auto client = open({u"--pattern"_s, u"1"_s, u"--geometry"_s, u"300,200,640x480"_s});
    auto here = platform();
    for (const QRect rect : {QRect(0, 0, 1280, 800), QRect(17, 33, 1, 1), QRect(1279, 799, 1, 1),
             QRect(311, 190, 401, 600), QRect(0, 700, 1280, 3)})
        EXPECT_EQ(area(here, rect), opaque(desktop().rootPixels(rect)));

    EXPECT_EQ(
        area(here, QRect(1200, -50, 500, 150)), opaque(desktop().rootPixels({1200, 0, 80, 100})));
    EXPECT_FALSE(here.capture->area({5000, 0, 9, 9}, {}, Pointer::Hidden).wait());
}

TEST_F(X11CaptureTest, drawsThePointerWhereItIsAndOnlyWhenAsked)
{
    desktop().moveTo({600, 400});
    auto here = platform();
    const QRect everything(0, 0, 1280, 800), near(560, 360, 80, 80);
    const QImage without = area(here, everything);
    QImage with = area(here, everything, {}, Pointer::Drawn);
    EXPECT_NE(with.copy(near), without.copy(near));
    // The same when the strip starts in the middle of the pointer.
    EXPECT_EQ(area(here, QRect(600, 401, 40, 39), {}, Pointer::Drawn), with.copy(600, 401, 40, 39));
    for (int y = near.top(); y <= near.bottom(); ++y)
        for (int x = near.left(); x <= near.right(); ++x)
            with.setPixel(x, y, without.pixel(x, y));
    EXPECT_EQ(with, without);
    EXPECT_EQ(here.displays->pointer(), QPoint(600, 400));
}

TEST_F(X11CaptureTest, describesWindowsFrontFirst)
{
    put(desktop().home() + u"/.local/share/applications/org.example.paint.desktop"_s,
        "[Desktop Entry]\nName=Paint & Co\nStartupWMClass=Painter\n[Desktop Action x]\nName=No\n");
    const auto back = open({u"--class"_s, u"painter,Painter"_s, u"--title"_s, u"Bild – ü"_s,
        u"--geometry"_s, u"100,100,300x200"_s});
    const auto front = open({u"--class"_s, u"editor,Editor"_s, u"--no-pid"_s, u"--type"_s,
        u"DIALOG"_s, u"--geometry"_s, u"150,150,300x200"_s});
    const auto dock = open({u"--type"_s, u"DOCK"_s, u"--geometry"_s, u"0,780,1280x20"_s});
    const auto menu = open({u"--override-redirect"_s, u"--geometry"_s, u"160,160,90x90"_s});
    const auto hidden = open({u"--minimized"_s, u"--title"_s, u"away"_s});

    auto here = platform();
    const auto windows = here.capture->windows();
    ASSERT_TRUE(windows);
    const Window* painter = find(*windows, back.id);
    const Window* editor = find(*windows, front.id);
    ASSERT_TRUE(painter && editor && find(*windows, dock.id) && find(*windows, menu.id));
    EXPECT_EQ(painter->title, u"Bild – ü"_s);
    EXPECT_EQ(painter->application,
        (Application {u"org.example.paint"_s, u"Paint & Co"_s, back.client->pid()}));
    EXPECT_EQ(editor->application, (Application {u"Editor"_s, u"Editor"_s, front.client->pid()}));
    EXPECT_TRUE(painter->frame.contains(back.geometry));
    EXPECT_GT(painter->frame.height(), back.geometry.height()) << "no title bar";
    EXPECT_EQ(find(*windows, menu.id)->frame, menu.geometry);

    EXPECT_EQ(painter->layer, 0);
    EXPECT_EQ(editor->layer, 0);
    EXPECT_GT(find(*windows, dock.id)->layer, 0);
    EXPECT_GT(find(*windows, menu.id)->layer, 0);
    const Window* away = find(*windows, hidden.id);
    ASSERT_TRUE(away);
    EXPECT_FALSE(away->onScreen);

    back.client->send("raise");
    EXPECT_TRUE(waitFor([&] {
        const auto order = here.capture->frontToBackOrder();
        return order.value(back.id) < order.value(front.id)
            && order.value(menu.id) < order.value(back.id) + int(order.size());
    }));
    const auto raised = here.capture->windows();
    EXPECT_LT(find(*raised, back.id), find(*raised, front.id)) << "not in front-to-back order";
}

TEST_F(X11CaptureTest, neverShowsTheCoverOfAWindowWhoseProgramHangs)
{
    const auto covered = open(
        {u"--pattern"_s, u"5"_s, u"--geometry"_s, u"200,200,400x300"_s, u"--override-redirect"_s});
    {
        auto resident = platform(Residency::Resident); // Keeps the pixels from before the hang.
        EXPECT_EQ(window(resident, covered.id).size(), QSize(400, 300));
        const auto cover = open({u"--geometry"_s, u"150,150,600x450"_s, u"--override-redirect"_s});
        ASSERT_EQ(::kill(pid_t(covered.client->pid()), SIGSTOP), 0);
        EXPECT_EQ(window(resident, covered.id), patternOf({400, 300}, 5));
    }
    auto oneShot = platform();
    const auto cover = open({u"--geometry"_s, u"150,150,600x450"_s, u"--override-redirect"_s});
    const auto taken
        = oneShot.capture->window(covered.id, WindowShadow::Dropped, Pointer::Hidden).wait();
    ASSERT_FALSE(taken);
    EXPECT_TRUE(taken.error().message.contains(u"does not answer"_s));
    ::kill(pid_t(covered.client->pid()), SIGCONT);
}

TEST_F(X11CaptureTest, keepsAlphaShapeAndShadowApart)
{
    auto here = platform();
    const auto translucent = open({u"--argb"_s, u"--pattern"_s, u"9"_s, u"--override-redirect"_s,
        u"--geometry"_s, u"100,100,256x100"_s});
    EXPECT_EQ(
        window(here, translucent.id), pictureOf({.seed = 9, .translucent = true}, {256, 100}));

    const auto shaped = open({u"--shaped"_s, u"--colour"_s, u"#123456"_s, u"--override-redirect"_s,
        u"--geometry"_s, u"400,100,200x120"_s});
    const QImage cut = window(here, shaped.id);
    for (int y = 0; y < 120; ++y)
        for (int x = 0; x < 200; ++x) {
            const int inset = cornerInset(y, 120);
            const bool inside = x >= inset && x < 200 - inset;
            ASSERT_EQ(cut.pixel(x, y), inside ? 0xff123456 : 0u) << x << ',' << y;
        }

    const auto decorated = open({u"--argb"_s, u"--csd"_s, u"20,22,14,30"_s, u"--pattern"_s, u"2"_s,
        u"--override-redirect"_s, u"--geometry"_s, u"700,100,300x200"_s});
    const QRect frame = find(*here.capture->windows(), decorated.id)->frame;
    EXPECT_EQ(frame, QRect(720, 114, 258, 156));
    const QImage with = window(here, decorated.id, WindowShadow::Kept);
    EXPECT_EQ(with.size(), QSize(300, 200)) << "the window's own shadow is kept as it is";
    EXPECT_EQ(window(here, decorated.id), with.copy(20, 14, 258, 156));

    const QImage shadowed = window(here, shaped.id, WindowShadow::Kept);
    EXPECT_GT(shadowed.width(), cut.width());
    EXPECT_GT(shadowed.height(), cut.height());
}

TEST_F(X11CaptureTest, leavesOwnWindowsOut)
{
    setRootColour(desktop(), 0x336699);
    ASSERT_TRUE(desktop().waitForPixel({1270, 790}, 0xff336699));
    leavesOwnWindowsOut(desktop());
    desktop().setRootPicture(patternOf({1280, 800}));
    leavesOwnWindowsOut(desktop());
}

TEST_F(CompositedCaptureTest, leavesOwnWindowsOut)
{
    desktop().setRootPicture(patternOf({1280, 800}));
    leavesOwnWindowsOut(desktop());
}

TEST_F(X11CaptureTest, failsWithASentenceWhenThereIsNothingToCapture)
{
    auto here = platform();
    auto gone = open();
    gone.client->stop();
    const auto taken = here.capture->window(gone.id, WindowShadow::Dropped, Pointer::Hidden).wait();
    ASSERT_FALSE(taken);
    EXPECT_TRUE(taken.error().message.contains(u"no window"_s));

    const QByteArray display = qgetenv("DISPLAY");
    for (const auto& [value, word] : {std::pair("", "DISPLAY"), std::pair(":93411", "connect")}) {
        qputenv("DISPLAY", value);
        const auto none = makeCapturePlatform(Residency::OneShot);
        ASSERT_FALSE(none);
        EXPECT_TRUE(none.error().message.contains(QLatin1String(word)));
    }
    qputenv("DISPLAY", display);
}

TEST_F(X11CaptureTest, survivesTheLossOfTheServer)
{
    auto doomed = VirtualDesktop::start();
    ASSERT_TRUE(doomed);
    const QByteArray display = qgetenv("DISPLAY");
    qputenv("DISPLAY", (*doomed)->display().toLatin1());
    auto there = platform(Residency::Resident);
    qputenv("DISPLAY", display);
    const auto frozen = there.capture->area({0, 0, 1280, 800}, {}, Pointer::Drawn).wait();
    ASSERT_TRUE(frozen);
    (*doomed)->stop();

    const auto rows = Bitmap::read(**frozen);
    ASSERT_FALSE(rows);
    EXPECT_TRUE(rows.error().message.contains(u"connection"_s));
    EXPECT_FALSE(there.capture->windows());
    EXPECT_FALSE(there.capture->area({0, 0, 9, 9}, {1, 2}, Pointer::Drawn).wait());
    EXPECT_FALSE(there.capture->window(1, WindowShadow::Kept, Pointer::Drawn).wait());
    EXPECT_TRUE(there.displays->list().isEmpty());
}

TEST_F(TwoMonitorCaptureTest, knowsScreensInPixelsAndPoints)
{
    auto here = platform();
    const auto displays = here.displays->list();
    ASSERT_EQ(displays.size(), 2);
    EXPECT_EQ(displays[0].name, u"L"_s);
    EXPECT_EQ(displays[0].native, QRect(0, 0, 1280, 800));
    EXPECT_EQ(displays[0].scale, 2);
    EXPECT_EQ(displays[0].points, QRectF(0, 0, 640, 400));
    EXPECT_EQ(displays[1].native, QRect(1280, 50, 1024, 768));
    EXPECT_EQ(displays[1].points, QRectF(1280, 400 - 50 - 768, 1024, 768));
}
