// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "overlay/DimRow.h"
#include "tests/desktop/DesktopTest.h"

using namespace Qt::StringLiterals;

namespace {

/// The monitors side by side, none as high as the other.
template <int leftPercent, int rightPercent>
DesktopOptions oddMonitors()
{
    return {.size = {1681, 721},
        .monitors = {{u"L"_s, QRect(0, 0, 1001, 701), leftPercent / 100.0},
            {u"R"_s, QRect(1001, 50, 680, 671), rightPercent / 100.0}}};
}

DesktopOptions compositedFractions()
{
    DesktopOptions options = oddMonitors<150, 175>();
    options.compositor = Compositor::Picom;
    return options;
}

DesktopOptions withPanel()
{
    return {.tray = true};
}

using RegionOverlayTest = DesktopTest<>;
using PanelOverlayTest = DesktopTest<withPanel>;
using MixedOverlayTest = DesktopTest<oddMonitors<100, 200>>;
using FractionOverlayTest = DesktopTest<compositedFractions>;

/// What is on the screen when nothing moves there any more.
QImage settledScreen(const VirtualDesktop& desktop)
{
    QImage last = desktop.rootPixels();
    EXPECT_TRUE(waitFor([&] {
        (void)waitFor([] { return false; }, std::chrono::milliseconds(100));
        const QImage before = std::exchange(last, desktop.rootPixels());
        return before == last;
    }));
    return last;
}

QImage dimmed(const QImage& picture)
{
    QImage dark(picture.size(), QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y)
        dimRow(reinterpret_cast<const quint32*>(picture.constScanLine(y)),
            reinterpret_cast<quint32*>(dark.scanLine(y)), picture.width());
    return dark;
}

/// With what the window manager put around it.
QRect frameOf(const VirtualDesktop& desktop, const ClientWindow& window)
{
    const auto around = desktop.property(window.id, "_NET_FRAME_EXTENTS");
    EXPECT_EQ(around.size(), 4u); // Left, right, top, bottom.
    return window.geometry.adjusted(
        -int(around[0]), -int(around[2]), int(around[1]), int(around[3]));
}

/// The demo program, with which a person makes one selection after the other.
class Selections final {
public:
    explicit Selections(const VirtualDesktop& desktop, const QStringList& options = {})
        : m_file(desktop.home() + u"/region.png"_s)
    {
        auto demo = desktop.launch(u"overlay-demo"_s, QStringList(m_file) + options);
        EXPECT_TRUE(demo) << demo.error().message.toStdString();
        m_demo = *std::move(demo);
    }

    void begin(const QByteArray& purpose = {})
    {
        m_demo->send(purpose);
        EXPECT_FALSE(m_demo->waitForLine("shown").isNull()) << m_demo->errors().toStdString();
    }

    bool isCancelled() { return !m_demo->waitForLine("cancelled").isNull(); }

    /// Whether the selection ended with exactly these pixels of a picture.
    testing::AssertionResult took(const QImage& picture, QRect rect)
    {
        const QByteArray taken = m_demo->waitForLine("taken ");
        const QByteArray size
            = QByteArray::number(rect.width()) + 'x' + QByteArray::number(rect.height());
        if (taken != "taken " + size)
            return testing::AssertionFailure()
                << taken.toStdString() << ", not " << size.toStdString()
                << m_demo->output().toStdString();
        if (QImage(m_file).convertToFormat(QImage::Format_RGB32) != picture.copy(rect))
            return testing::AssertionFailure() << "other pixels";
        return testing::AssertionSuccess();
    }

    bool isActive() { return !m_demo->waitForLine("active").isNull(); }
    bool isOpen() { return m_demo->waitForLine("", std::chrono::milliseconds(150)).isNull(); }

private:
    QString m_file;
    std::unique_ptr<Client> m_demo;
};

/// Drags over odd pixels, in several directions, on each monitor; and that each is covered exactly.
void takesExactlyWhatIsDragged(VirtualDesktop& desktop)
{
    const QRect monitors[] = {{0, 0, 1001, 701}, {1001, 50, 680, 671}};
    const auto root = desktop.rootPixels().size();
    desktop.setRootPicture(patternOf(root));
    const QImage screen = settledScreen(desktop);
    Selections selections(desktop);
    const auto begin = [&] { // A compositor shows the last selection for a moment longer.
        EXPECT_TRUE(waitFor([&] { return desktop.rootPixels() == screen; }));
        selections.begin();
    };
    for (const QRect& monitor : monitors) {
        const QPoint middle = monitor.center();
        const QPoint corners[][2] = {
            {monitor.topLeft() + QPoint(31, 67), middle + QPoint(4, 9)},
            {middle + QPoint(101, 53), middle - QPoint(102, 60)},
            {middle - QPoint(77, -33), monitor.topRight() + QPoint(-13, 5)},
        };
        for (const auto& [from, to] : corners) {
            begin();
            desktop.drag(from, to);
            const QPoint first(std::min(from.x(), to.x()), std::min(from.y(), to.y()));
            EXPECT_TRUE(selections.took(screen,
                QRect(first, QSize(std::abs(to.x() - from.x()), std::abs(to.y() - from.y())))))
                << monitor.x() << ": " << from.x() << "," << from.y();
        }

        // A drag that goes on past the edge or ends on the last pixel takes all up to the edge.
        begin();
        desktop.drag(middle, monitor.bottomRight());
        EXPECT_TRUE(selections.took(screen, {middle, monitor.bottomRight()}));
    }

    begin();
    desktop.moveTo(monitors[0].center());
    const QImage dark = dimmed(screen);
    for (const QRect& monitor : monitors) {
        const QRect edges[] = {{monitor.topLeft(), QSize(monitor.width() / 3, 3)},
            {monitor.bottomRight() - QPoint(99, 2), monitor.bottomRight()},
            {monitor.bottomRight() - QPoint(2, 99), monitor.bottomRight()},
            {monitor.bottomLeft() - QPoint(0, 99), QSize(3, 100)}};
        for (const QRect& edge : edges)
            EXPECT_TRUE(waitFor([&] { return desktop.rootPixels(edge) == dark.copy(edge); }))
                << edge.x() << "," << edge.y();
    }
    desktop.key("Escape");
    EXPECT_TRUE(selections.isCancelled());
    EXPECT_TRUE(desktop.waitForPixel({5, 5}, screen.pixel(5, 5)));
}

} // namespace

TEST_F(MixedOverlayTest, takesExactlyWhatIsDraggedOnEitherScreen)
{
    takesExactlyWhatIsDragged(desktop());
}

TEST_F(FractionOverlayTest, takesExactlyWhatIsDraggedOnEitherScreen)
{
    takesExactlyWhatIsDragged(desktop());
}

TEST_F(MixedOverlayTest, listensToTheKeysOfTheScreenUnderThePointer)
{
    const QImage screen = settledScreen(desktop());
    Selections selections(desktop());
    desktop().moveTo({1300, 300});
    selections.begin(); // The pointer has not moved since.
    desktop().key("space");
    EXPECT_TRUE(selections.took(screen, {1001, 50, 680, 671}));
    selections.begin();
    desktop().moveTo({500, 300});
    desktop().key("space");
    EXPECT_TRUE(selections.took(screen, {0, 0, 1001, 701}));
    for (const QPoint pointer : {QPoint(1300, 300), QPoint(500, 300)}) {
        selections.begin();
        desktop().moveTo(pointer);
        desktop().key("Escape");
        EXPECT_TRUE(selections.isCancelled());
    }
}

TEST_F(RegionOverlayTest, takesWindows)
{
    desktop().setRootPicture(patternOf({1280, 800}));
    const auto window = open({u"--pattern"_s, u"3"_s, u"--geometry"_s, u"200,150,400x300"_s});
    const auto above = open({u"--pattern"_s, u"4"_s, u"--geometry"_s, u"400,250,300x300"_s});
    const QImage screen = settledScreen(desktop());
    Selections selections(desktop());
    desktop().moveTo({250, 200});
    selections.begin();
    desktop().key("Return"); // Nothing is selected before the pointer moves.
    desktop().clickAt({20, 20});
    EXPECT_TRUE(selections.isOpen());
    desktop().clickAt({450, 300});
    EXPECT_TRUE(selections.took(screen, frameOf(desktop(), above)));

    selections.begin();
    desktop().moveTo({250, 200});
    desktop().key("KP_Enter");
    EXPECT_TRUE(selections.took(screen, frameOf(desktop(), window)));
    selections.begin();
    desktop().key("Tab");
    desktop().key("Tab");
    desktop().key("Return");
    EXPECT_TRUE(selections.took(screen, frameOf(desktop(), window)));
}

TEST_F(RegionOverlayTest, isSteeredByKeys)
{
    const QImage screen = settledScreen(desktop());
    Selections selections(desktop());
    selections.begin();
    desktop().moveTo({300, 300});
    desktop().press();
    desktop().moveTo({350, 280});
    desktop().pressKey("shift"); // Reshapes at once, without another move.
    const QRgb inside = screen.pixel(340, 255);
    EXPECT_TRUE(desktop().waitForPixel({340, 255}, inside));
    desktop().release();
    desktop().releaseKey("shift");
    EXPECT_TRUE(selections.took(screen, {300, 250, 50, 50}));

    selections.begin();
    desktop().moveTo({400, 200});
    desktop().key("a");
    for (int i = 0; i < 7; ++i)
        desktop().key("Right");
    desktop().key("shift+Down");
    EXPECT_TRUE(waitFor([&] { return desktop().pointer() == QPoint(407, 210); }));
    desktop().key("Return");
    EXPECT_TRUE(selections.took(screen, {400, 200, 7, 10}));

    selections.begin();
    desktop().moveTo({500, 400});
    desktop().press();
    desktop().moveTo({600, 500});
    desktop().click(3); // Abandons the drag; the next one cancels.
    desktop().release();
    EXPECT_TRUE(selections.isOpen());
    desktop().click(3);
    EXPECT_TRUE(selections.isCancelled());
}

TEST_F(PanelOverlayTest, coversEverythingAndLeavesTheActiveWindowActive)
{
    const auto window = open({u"--pattern"_s, u"5"_s});
    Selections selections(desktop());
    const auto coversThePanel = [&] {
        const QPoint onPanel(900, 795);
        const QRgb before = settledScreen(desktop()).pixel(onPanel);
        selections.begin();
        const QImage dark
            = dimmed(QImage(reinterpret_cast<const uchar*>(&before), 1, 1, QImage::Format_RGB32));
        EXPECT_TRUE(desktop().waitForPixel(onPanel, dark.pixel(0, 0)));
    };
    const auto full = open({u"--pattern"_s, u"6"_s, u"--fullscreen"_s});
    EXPECT_FALSE(full.client->waitForLine("focus in").isNull());
    coversThePanel();
    desktop().key("Escape");
    EXPECT_TRUE(selections.isCancelled());
    desktop().key("x");
    EXPECT_EQ(full.client->waitForLine("key "), "key x"); // It never saw the other one.
    EXPECT_FALSE(full.client->output().contains("focus out"));

    coversThePanel();
    const auto newcomer = open({u"--geometry"_s, u"700,500,300x200"_s});
    EXPECT_FALSE(newcomer.client->waitForLine("focus in").isNull());
    desktop().key("Escape"); // Keys are ours, whichever window is active.
    EXPECT_TRUE(selections.isCancelled());
    EXPECT_TRUE(waitFor([&] { // The window manager may yet be busy with the focus.
        desktop().key("y");
        return newcomer.client->waitForLine("key ", std::chrono::milliseconds(200)) == "key y";
    }));
}

TEST_F(RegionOverlayTest, isCancelledWhenTheScreensChange)
{
    Selections selections(desktop());
    selections.begin();
    const Monitor half {u"half"_s, QRect(0, 0, 640, 800), 1};
    EXPECT_TRUE(desktop().addMonitor(half));
    EXPECT_TRUE(selections.isCancelled());
    EXPECT_TRUE(desktop().removeMonitor(half.name));
}

TEST_F(RegionOverlayTest, hearsKeysWhileAnotherWindowOfOursIsActive)
{
    Selections selections(desktop(), {u"--window"_s});
    EXPECT_TRUE(selections.isActive());
    selections.begin();
    desktop().key("Escape");
    EXPECT_TRUE(selections.isCancelled());
}

TEST_F(RegionOverlayTest, waitsForAKeyboardThatIsHeldElsewhere)
{
    Selections selections(desktop());
    auto* const other = desktop().connection();
    const auto cookie = xcb_grab_keyboard(other, 0, desktop().screen().root, XCB_CURRENT_TIME,
        XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    free(xcb_grab_keyboard_reply(other, cookie, nullptr));
    selections.begin();
    desktop().key("Escape");
    EXPECT_TRUE(selections.isOpen());
    xcb_ungrab_keyboard(other, XCB_CURRENT_TIME);
    xcb_flush(other);
    EXPECT_TRUE(waitFor([&] {
        desktop().key("Escape");
        return !selections.isOpen();
    }));
}
