// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "fun/MenuBarLabel.h"

#include "tests/TestUser.h"

#include <gtest/gtest.h>

#include <map>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// A clock that stands still until it is moved on.
class Clock {
public:
    void after(std::chrono::milliseconds time, std::function<void()> act)
    {
        m_due.emplace(m_now + time, std::move(act));
    }
    void passes(std::chrono::milliseconds time)
    {
        m_now += time;
        while (!m_due.empty() && m_due.begin()->first <= m_now)
            m_due.extract(m_due.begin()).mapped()();
    }

private:
    std::chrono::milliseconds m_now {};
    std::multimap<std::chrono::milliseconds, std::function<void()>> m_due;
};

class MenuBarLabelTest : public testing::Test, protected TestUser {
protected:
    MenuBarLabelTest() { prefs.registerDefaults(); }

    Clock m_clock;
    Fun m_fun {folders, prefs};
    MenuBarLabel m_label {
        prefs, m_fun, [this](std::chrono::milliseconds time, QObject*, std::function<void()> act) {
            m_clock.after(time, std::move(act));
        }};
};

} // namespace

TEST_F(MenuBarLabelTest, sparklesUntilTheFirstOfTwoCapturesIsOver)
{
    EXPECT_EQ(m_label.text(), u"🥚"_s);
    m_fun.capture();
    EXPECT_EQ(m_label.text(), u"🥚✨"_s);
    m_clock.passes(1000ms);
    m_fun.capture();
    m_clock.passes(399ms);
    EXPECT_EQ(m_label.text(), u"🥚✨"_s);
    m_clock.passes(1ms);
    EXPECT_EQ(m_label.text(), u"🥚"_s);
    m_clock.passes(1000ms);
    EXPECT_EQ(m_label.text(), u"🥚"_s);
}

TEST_F(MenuBarLabelTest, showsNoPetWhereNoneIsWantedAlsoWhileItSparkles)
{
    m_fun.capture();
    int told = 0;
    QObject::connect(&m_label, &MenuBarLabel::changed, [&told] { ++told; });
    prefs.set(Prefs::keys.trayPet, false);
    EXPECT_EQ(m_label.text(), QString());
    EXPECT_EQ(told, 1) << "at once";
    m_clock.passes(1400ms);
    prefs.set(Prefs::keys.trayPet, true);
    EXPECT_EQ(m_label.text(), u"🥚"_s);
}

TEST_F(MenuBarLabelTest, growsWithThePet)
{
    for (int captures = 0; captures < 4; ++captures) // Forty points.
        m_fun.capture();
    m_clock.passes(1400ms);
    EXPECT_EQ(m_label.text(), u"🐣"_s);
}
