// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "shortcuts/HotkeyCenter.h"

#include "platform/fake/FakeHotkeys.h"

#include <gmock/gmock.h>

#include <QCoreApplication>

using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

class HotkeyCenterTest : public testing::Test {
protected:
    bool add(std::uint32_t keyCode)
    {
        return m_center.registerCombo(
            {keyCode, KeyChord::Control, u"?"_s}, [this, keyCode] { m_done.push_back(keyCode); });
    }

    FakeHotkeys m_hotkeys;
    HotkeyCenter m_center {m_hotkeys};
    std::vector<std::uint32_t> m_done; ///< The key codes whose action ran.
};

} // namespace

TEST_F(HotkeyCenterTest, takesAnIdForEachAttemptAndNoneTwice)
{
    m_hotkeys.refused = {{19, KeyChord::Control}};
    EXPECT_TRUE(add(18));
    EXPECT_FALSE(add(19)) << "refused";
    EXPECT_FALSE(add(18)) << "ours already";
    EXPECT_TRUE(add(20));
    EXPECT_THAT(m_hotkeys.registered.keys(), ElementsAre(1, 4));
    EXPECT_EQ(m_hotkeys.registered.value(4), (KeyChord {20, KeyChord::Control}));

    m_center.unregisterAll();
    EXPECT_TRUE(m_hotkeys.registered.isEmpty());
    EXPECT_TRUE(add(18));
    EXPECT_THAT(m_hotkeys.registered.keys(), ElementsAre(5));
}

TEST_F(HotkeyCenterTest, runsTheActionOnlyAfterTheHandlerHasReturned)
{
    add(18);
    add(19);
    m_hotkeys.press(2);
    m_center.fire(1);
    EXPECT_THAT(m_done, ElementsAre());
    m_center.unregisterAll(); // Comes too late for them.
    QCoreApplication::processEvents();
    EXPECT_THAT(m_done, ElementsAre(19, 18));

    m_hotkeys.press(1);
    m_center.fire(7);
    QCoreApplication::processEvents();
    EXPECT_EQ(m_done.size(), 2u) << "no action, nothing done";
}

TEST_F(HotkeyCenterTest, anActionMayRebuildTheRegistry)
{
    m_center.registerCombo({18, KeyChord::Control, u"1"_s}, [this] {
        m_center.unregisterAll();
        add(19);
    });
    m_hotkeys.press(1);
    QCoreApplication::processEvents();
    m_hotkeys.press(2);
    QCoreApplication::processEvents();
    EXPECT_THAT(m_done, ElementsAre(19));
}
