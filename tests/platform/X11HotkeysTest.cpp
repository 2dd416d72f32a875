// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/x11/X11Hotkeys.h"

#include "tests/desktop/DesktopTest.h"

#include <gmock/gmock.h>

#include <QAbstractEventDispatcher>
#include <QEventLoop>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using testing::ElementsAre;

namespace {

constexpr std::uint32_t ctrlShift = KeyChord::Control | KeyChord::Shift;
constexpr KeyChord digit1 {18, ctrlShift}, digit2 {19, ctrlShift};
constexpr KeyChord letterY {16, KeyChord::Control | KeyChord::Option | KeyChord::Command};

// Places of keys, the same on every layout.
constexpr xcb_keycode_t ctrl = 37, shift = 50, alt = 64, super = 133, capsLock = 66, numLock = 77,
                        scrollLock = 78, one = 10, two = 11, y = 29, f9 = 75;

class X11HotkeysTest : public DesktopTest<> {
protected:
    void SetUp() override
    {
        DesktopTest::SetUp();
        if (HasFatalFailure() || IsSkipped())
            return;
        m_hotkeys = hotkeys();
        ASSERT_TRUE(m_hotkeys && m_hotkeys->registerHotkey(fence, {101, 0}));
        QObject::connect(m_hotkeys.get(), &Hotkeys::pressed,
            [this](std::uint32_t id) { m_pressed.push_back(id); });
    }

    static std::unique_ptr<X11Hotkeys> hotkeys()
    {
        auto connection = X11Connection::open();
        EXPECT_TRUE(connection);
        return connection ? std::make_unique<X11Hotkeys>(*connection) : nullptr;
    }

    static void hold(std::initializer_list<xcb_keycode_t> keys)
    {
        for (const auto key : keys)
            desktop().pressKeyCode(key);
    }
    static void letGo(std::initializer_list<xcb_keycode_t> keys)
    {
        for (const auto key : keys)
            desktop().releaseKeyCode(key);
    }
    static void strike(std::initializer_list<xcb_keycode_t> keys)
    {
        hold(keys);
        letGo(keys);
    }

    /// What has fired since this was last asked, after everything that was pressed until now.
    std::vector<std::uint32_t> pressed()
    {
        strike({f9});
        EXPECT_TRUE(waitFor([this] { return std::ranges::count(m_pressed, fence) == 1; }));
        std::erase(m_pressed, fence);
        return std::exchange(m_pressed, {});
    }

    /// Whether more fires while keys are held for longer than it takes them to repeat.
    bool firesAgain(std::size_t already)
    {
        return waitFor([&] { return m_pressed.size() > already; }, 400ms);
    }

    static void run(const QString& program, const QStringList& arguments)
    {
        const auto done = desktop().run(program, arguments);
        EXPECT_TRUE(done && done->exitCode == 0) << qPrintable(program);
    }

    static constexpr std::uint32_t fence = 1000;
    std::unique_ptr<X11Hotkeys> m_hotkeys;
    std::vector<std::uint32_t> m_pressed;
};

} // namespace

TEST_F(X11HotkeysTest, firesWhateverLocksAreOnAndWhoeverHasTheFocus)
{
    const auto window = open({u"--own"_s});
    ASSERT_FALSE(window.client->waitForLine("focus in").isNull());
    ASSERT_TRUE(m_hotkeys->registerHotkey(1, digit1));
    ASSERT_TRUE(m_hotkeys->registerHotkey(2, letterY));
    for (const auto lock : {numLock, capsLock, numLock, capsLock}) { // Both are off at the end.
        strike({lock});
        strike({ctrl, shift, one});
        strike({super, ctrl, alt, y});
        EXPECT_THAT(pressed(), ElementsAre(1, 2)) << int(lock);
    }
    strike({ctrl, one});
    strike({ctrl, shift, two});
    strike({ctrl, shift, alt, one});
    EXPECT_THAT(pressed(), ElementsAre()) << "other keys are none of ours";
    EXPECT_FALSE(window.client->waitForLine("key ctrl+shift+alt+1").isNull());
    EXPECT_FALSE(window.client->output().contains("key ctrl+shift+1"));

    m_hotkeys->unregisterHotkey(1);
    strike({ctrl, shift, one});
    EXPECT_FALSE(window.client->waitForLine("key ctrl+shift+1").isNull());
    EXPECT_THAT(pressed(), ElementsAre());
}

TEST_F(X11HotkeysTest, refusesWhatIsTakenAndLeavesNothingBehind)
{
    EXPECT_FALSE(m_hotkeys->registerHotkey(1, {53, KeyChord::Option})) << "the window manager's";
    EXPECT_FALSE(m_hotkeys->registerHotkey(2, {54, ctrlShift})) << "no such key";
    EXPECT_FALSE(m_hotkeys->registerHotkey(3, {18, 1024})) << "no such modifier";
    EXPECT_TRUE(m_hotkeys->registerHotkey(4, digit1));
    EXPECT_FALSE(m_hotkeys->registerHotkey(5, digit1));
    strike({ctrl, shift, one});
    EXPECT_THAT(pressed(), ElementsAre(4));

    // Somebody has it with one of the locks only.
    xcb_connection_t* const other = desktop().connection();
    const auto state = XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_SHIFT;
    const auto grab = [&](int modifiers) {
        return !owned(xcb_request_check(other,
            xcb_grab_key_checked(other, 0, desktop().screen().root, std::uint16_t(modifiers), two,
                XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC)));
    };
    ASSERT_TRUE(grab(state | XCB_MOD_MASK_LOCK));
    EXPECT_FALSE(m_hotkeys->registerHotkey(6, digit2));
    EXPECT_TRUE(grab(state)) << "was not given back";
    xcb_ungrab_key(other, two, desktop().screen().root, XCB_MOD_MASK_ANY);
    EXPECT_TRUE(desktop().isOwned("WM_S0")); // All requests have been dealt with.
    EXPECT_TRUE(m_hotkeys->registerHotkey(7, digit2));
    strike({ctrl, shift, two});
    EXPECT_THAT(pressed(), ElementsAre(7));

    const auto second = hotkeys();
    EXPECT_FALSE(second->registerHotkey(1, digit1));
    m_hotkeys.reset();
    EXPECT_TRUE(waitFor([&] { return second->registerHotkey(2, digit1); }));
}

TEST_F(X11HotkeysTest, firesOnceHoweverLongTheKeyIsHeld)
{
    run(u"xset"_s, {u"r"_s, u"rate"_s, u"150"_s, u"30"_s});
    const auto window = open();
    ASSERT_FALSE(window.client->waitForLine("focus in").isNull());
    hold({ctrl, two});
    for (int i = 0; i < 3; ++i)
        EXPECT_FALSE(window.client->waitForLine("key ctrl+2").isNull()) << "keys do not repeat";
    letGo({two, ctrl});

    ASSERT_TRUE(m_hotkeys->registerHotkey(1, digit1));
    for (const bool raw : {false, true}) {
        m_hotkeys->setSeesGrabbedKeyboards(raw);
        hold({ctrl, shift, one});
        EXPECT_FALSE(firesAgain(1));
        letGo({one});
        strike({one});
        letGo({shift, ctrl});
        EXPECT_THAT(pressed(), ElementsAre(1, 1));
    }

    m_hotkeys->setSeesGrabbedKeyboards(false);
    for (const bool repeats : {true, false}) { // A shortcut that is chosen by pressing it.
        hold({ctrl, shift, two});
        ASSERT_TRUE(m_hotkeys->registerHotkey(2, digit2));
        EXPECT_FALSE(repeats && firesAgain(0));
        letGo({two, shift, ctrl});
        EXPECT_FALSE(firesAgain(0));
        strike({ctrl, shift, two});
        EXPECT_THAT(pressed(), ElementsAre(2));
        m_hotkeys->unregisterHotkey(2);
    }
}

TEST_F(X11HotkeysTest, keepsToThePlacesOfKeysOnAnyLayout)
{
    ASSERT_TRUE(m_hotkeys->registerHotkey(1, digit1));
    std::uint32_t id = 2;
    ASSERT_TRUE(m_hotkeys->registerHotkey(id, letterY));
    for (const auto& layout : {u"de"_s, u"fr"_s, u"ru"_s, u"us,ru"_s, u"us"_s}) {
        run(u"setxkbmap"_s, {layout, u"-option"_s, u"grp:sclk_toggle"_s});
        strike({scrollLock}); // The second layout, if there is one.
        strike({ctrl, shift, one});
        strike({ctrl, alt, super, y});
        EXPECT_THAT(pressed(), ElementsAre(1, id)) << qPrintable(layout);
        m_hotkeys->unregisterHotkey(id);
        ASSERT_TRUE(m_hotkeys->registerHotkey(++id, letterY)) << qPrintable(layout);
    }
    run(u"setxkbmap"_s, {u"us"_s, u"-option"_s});
}

TEST_F(X11HotkeysTest, followsModifiersThatMoveToOtherBits)
{
    ASSERT_TRUE(m_hotkeys->registerHotkey(1, digit1));
    ASSERT_TRUE(m_hotkeys->registerHotkey(2, letterY));
    // Shift, Lock, Control, Mod1 to Mod5: Super is the first, Num Lock the third, Alt the fifth.
    const xcb_keycode_t keys[] = {shift, capsLock, ctrl, super, 0, numLock, 0, alt};
    const auto moved = owned(xcb_set_modifier_mapping_reply(desktop().connection(),
        xcb_set_modifier_mapping(desktop().connection(), 1, keys), nullptr));
    ASSERT_TRUE(moved && moved->status == XCB_MAPPING_STATUS_SUCCESS);
    EXPECT_THAT(pressed(), ElementsAre());
    for (int i = 0; i < 2; ++i) {
        strike({numLock});
        strike({ctrl, shift, one});
        strike({ctrl, alt, super, y});
        EXPECT_THAT(pressed(), ElementsAre(1, 2));
    }
    run(u"setxkbmap"_s, {u"us"_s});
}

TEST_F(X11HotkeysTest, seesKeysThatAnOpenMenuHoldsOnlyWhenAsked)
{
    const auto menu = open({u"--override-redirect"_s});
    ASSERT_TRUE(m_hotkeys->registerHotkey(1, digit1));
    const auto grabKeyboard = [&] {
        menu.client->send("grab keyboard");
        EXPECT_FALSE(menu.client->waitForLine("keyboard grabbed").isNull());
    };
    const auto ungrabKeyboard = [&] {
        menu.client->send("ungrab keyboard");
        EXPECT_FALSE(menu.client->waitForLine("keyboard ungrabbed").isNull());
    };
    for (int i = 0; i < 2; ++i) {
        m_hotkeys->setSeesGrabbedKeyboards(false);
        grabKeyboard();
        strike({ctrl, shift, one});
        EXPECT_FALSE(menu.client->waitForLine("key ctrl+shift+1").isNull());
        ungrabKeyboard();
        EXPECT_THAT(pressed(), ElementsAre()) << "not asked for";

        grabKeyboard();
        hold({ctrl, shift}); // From before it listens.
        m_hotkeys->setSeesGrabbedKeyboards(true);
        strike({one});
        letGo({shift, ctrl});
        strike({capsLock});
        strike({ctrl, shift, one});
        strike({capsLock});
        strike({ctrl, shift, two});
        strike({ctrl, one});
        strike({ctrl, shift, one});
        EXPECT_THAT(pressed(), ElementsAre(1, 1, 1));
        ungrabKeyboard();
        strike({ctrl, shift, one});
        EXPECT_THAT(pressed(), ElementsAre(1)) << "once, not twice";
    }
}

TEST_F(X11HotkeysTest, firesOnceForAPressThatAnotherProgramHoldsBack)
{
    ASSERT_TRUE(m_hotkeys->registerHotkey(1, digit1));
    m_hotkeys->setSeesGrabbedKeyboards(true);
    xcb_connection_t* const other = desktop().connection();
    xcb_grab_key(other, 0, desktop().screen().root, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_SHIFT, two,
        XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_SYNC);
    hold({ctrl, shift, two, one});
    letGo({one, two, shift, ctrl});
    xcb_allow_events(other, XCB_ALLOW_REPLAY_KEYBOARD, XCB_CURRENT_TIME);
    xcb_ungrab_key(other, two, desktop().screen().root, XCB_MOD_MASK_ANY);
    xcb_flush(other);
    EXPECT_THAT(pressed(), ElementsAre(1));
}

TEST_F(X11HotkeysTest, survivesTheLossOfTheServer)
{
    auto doomed = VirtualDesktop::start();
    ASSERT_TRUE(doomed);
    const QByteArray display = qgetenv("DISPLAY");
    qputenv("DISPLAY", (*doomed)->display().toLatin1());
    const auto lost = hotkeys();
    qputenv("DISPLAY", display);
    EXPECT_TRUE(lost->registerHotkey(1, digit1));
    lost->setSeesGrabbedKeyboards(true);
    (*doomed)->pressKeyCode(ctrl);
    (*doomed)->pressKeyCode(shift);
    (*doomed)->pressKeyCode(one);
    EXPECT_FALSE(waitFor([] { return false; }, 100ms));
    (*doomed)->stop();

    EXPECT_FALSE(lost->registerHotkey(2, digit2));
    lost->unregisterHotkey(1);
    lost->setSeesGrabbedKeyboards(false);
    int awakenings = 0;
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake,
        lost.get(), [&] { ++awakenings; });
    QEventLoop loop;
    QTimer::singleShot(200ms, &loop, &QEventLoop::quit);
    loop.exec();
    EXPECT_LT(awakenings, 50) << "the event loop spins";
}
