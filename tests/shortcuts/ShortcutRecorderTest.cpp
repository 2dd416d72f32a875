// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "shortcuts/ShortcutSettings.h"

#include "platform/fake/FakePlatform.h"
#include "tests/TestUser.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace {

// Positions of keys, as the system tells them.
constexpr quint32 one = 10, escape = 9, backspace = 22, letterA = 38, f6 = 72, forwardDelete = 119;

class ShortcutRecorderTest : public testing::Test, protected TestUser {
protected:
    ShortcutRecorderTest()
    {
        prefs.registerDefaults();
        registerAll();
        m_recorder.show();
    }

    void registerAll()
    {
        m_center.unregisterAll();
        for (const auto& info : captureKinds)
            if (const auto combo
                = KeyCombo::fromText(prefs.get(*Prefs::keys.hotkey(QString(info.key)))))
                m_center.registerCombo(*combo, [] {});
    }

    static void press(quint32 position, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QWidget other; // Whoever has the keyboard would get it.
        QKeyEvent event(QEvent::KeyPress, key, modifiers, position, 0, 0);
        QCoreApplication::sendEvent(&other, &event);
    }

    qsizetype registered() const { return m_hotkeys.registered.size(); }
    QString stored() const { return prefs.get(Prefs::keys.hkRegion); }

    FakeHotkeys m_hotkeys;
    HotkeyCenter m_center {m_hotkeys};
    ShortcutRecorder m_recorder {
        {prefs, m_center, [this] { registerAll(); }}, Prefs::keys.hkRegion};
};

} // namespace

TEST_F(ShortcutRecorderTest, recordsTheNextShortcutThatIsPressed)
{
    EXPECT_EQ(m_recorder.text(), u"⌃⇧1"_s);
    m_recorder.click();
    EXPECT_EQ(m_recorder.text(), u"Type shortcut…"_s);
    EXPECT_EQ(registered(), 0) << "or the shortcut would be triggered";

    press(letterA, Qt::Key_A);
    press(50, Qt::Key_Shift, Qt::ShiftModifier);
    EXPECT_TRUE(m_recorder.isRecording()) << "neither is a shortcut";
    press(letterA, Qt::Key_A, Qt::ShiftModifier);
    EXPECT_FALSE(m_recorder.isRecording());
    EXPECT_EQ(stored(), u"0:512:A"_s);
    EXPECT_EQ(m_recorder.text(), u"⇧A"_s);
    EXPECT_EQ(registered(), 5);

    m_recorder.click();
    press(f6, Qt::Key_F6);
    EXPECT_EQ(stored(), u"97:0:F6"_s);
}

TEST_F(ShortcutRecorderTest, clearsForGoodByDelete)
{
    for (const auto& [position, key] :
        {std::pair(backspace, Qt::Key_Backspace), std::pair(forwardDelete, Qt::Key_Delete)}) {
        prefs.set(Prefs::keys.hkRegion, u"97:0:F6"_s);
        m_recorder.click();
        press(position, key);
        EXPECT_EQ(m_recorder.text(), u"None"_s);
        EXPECT_EQ(registered(), 4);
    }
    ASSERT_TRUE(prefs.flush());
    Prefs later(folders);
    later.registerDefaults();
    EXPECT_EQ(later.get(Prefs::keys.hkRegion), QString());
}

TEST_F(ShortcutRecorderTest, changesNothingWhenItIsStopped)
{
    const std::vector<std::function<void()>> ways {[] { press(escape, Qt::Key_Escape); },
        [this] { m_recorder.click(); }, [this] { m_recorder.hide(); }};
    for (const auto& stop : ways) {
        m_recorder.show();
        m_recorder.click();
        ASSERT_TRUE(m_recorder.isRecording());
        stop();
        EXPECT_FALSE(m_recorder.isRecording());
        EXPECT_EQ(stored(), u"18:4608:1"_s);
        EXPECT_EQ(registered(), 5) << "as before";
        press(one, Qt::Key_1, Qt::ControlModifier);
        EXPECT_EQ(stored(), u"18:4608:1"_s) << "nobody listens any more";
    }
}

TEST_F(ShortcutRecorderTest, followsWhatIsSetElsewhere)
{
    prefs.set(Prefs::keys.hkRegion, u"97:0:F6"_s);
    EXPECT_EQ(m_recorder.text(), u"F6"_s);
}
