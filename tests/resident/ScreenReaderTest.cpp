// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/resident/AccessibilityBus.h"
#include "tests/resident/ResidentDesktop.h"

using namespace Qt::StringLiterals;

namespace {

/// What arrives of the real program at a screen reader.
class ScreenReaderTest : public ResidentDesktop<plainDesktop> {
protected:
    static void SetUpTestSuite()
    {
        ResidentDesktop::SetUpTestSuite();
        if (!AccessibilityBus::isInstalled() || !VirtualDesktop::isInstalled())
            return;
        auto started = AccessibilityBus::start(desktop());
        if (started)
            s_bus = *std::move(started);
    }
    static void TearDownTestSuite()
    {
        s_bus.reset();
        ResidentDesktop::TearDownTestSuite();
    }
    void SetUp() override
    {
        if (!AccessibilityBus::isInstalled())
            GTEST_SKIP() << "at-spi2-core is not installed; this test needs its bus";
        ResidentDesktop::SetUp();
        if (!IsSkipped()) {
            ASSERT_TRUE(s_bus);
        }
    }

    using Object = AccessibilityBus::Object;
    static QList<Object> objects() { return s_bus->objects(); }

    /// Waits until this is told. None, with all that is told instead, if it is not.
    static std::optional<Object> heard(const QString& role, const QString& name)
    {
        std::optional<Object> found;
        const bool isThere = waitFor([&] {
            const auto all = objects();
            if (const Object* object = AccessibilityBus::find(all, role, name))
                found = *object;
            return found.has_value();
        });
        if (!isThere) {
            QString all;
            for (const Object& each : objects())
                all += each.role + u" “"_s + each.name + u"”\n"_s;
            ADD_FAILURE() << role.toStdString() << " “" << name.toStdString() << "” is not among:\n"
                          << all.toStdString();
        }
        return found;
    }

    static inline std::unique_ptr<AccessibilityBus> s_bus;
};

} // namespace

TEST_F(ScreenReaderTest, hearsWhatIsOnEverySurface)
{
    capture(u"screen"_s);
    pixmallow({u"settings"_s});
    EXPECT_TRUE(heard(u"frame"_s, u"Settings"_s));
    EXPECT_TRUE(heard(u"list item"_s, u"Shortcuts"_s));
    EXPECT_TRUE(heard(u"check box"_s, u"Copy every capture"_s));

    pixmallow({u"history"_s});
    EXPECT_TRUE(heard(u"frame"_s, u"History"_s));
    EXPECT_TRUE(heard(u"list"_s, u"Captures"_s));
    const auto card = heard(u"list item"_s, u"Today"_s);
    ASSERT_TRUE(card);
    EXPECT_TRUE(heard(u"text"_s, u"Search"_s));

    EXPECT_TRUE(s_bus->press(*card)); // Opens it in the editor.
    EXPECT_TRUE(heard(u"canvas"_s, u"Picture"_s));
    EXPECT_TRUE(heard(u"radio button"_s, u"Arrow"_s));
    EXPECT_TRUE(heard(u"push button"_s, u"Undo"_s));
    desktop().key("Return"); // The tool in hand is the arrow.
    const auto arrow = heard(u"graphic"_s, u"Arrow, "_s);
    ASSERT_TRUE(arrow);
    EXPECT_TRUE(arrow->states.contains(u"selected"_s));

    pixmallow({u"capture"_s, u"region"_s});
    EXPECT_TRUE(heard(u"dialog"_s, u"Drag to select"_s));
    desktop().key("Escape");
}
