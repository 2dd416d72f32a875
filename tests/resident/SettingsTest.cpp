// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/resident/ResidentDesktop.h"

using namespace Qt::StringLiterals;

namespace {

DesktopOptions withTray()
{
    DesktopOptions options;
    options.tray = true;
    return options;
}

/// The real program, its settings and its panel, worked with keys and mouse as a user does.
class SettingsTest : public ResidentDesktop<withTray> {
protected:
    void SetUp() override
    {
        ResidentDesktop::SetUp();
        if (!IsSkipped())
            setPreferences(R"({"afterCapture":"none","captureAnimation":"none",)"
                           R"("achievementToasts":false,"trayPet":false})");
    }

    QJsonObject preferences()
    {
        QFile file(desktop().home() + u"/.config/Pixmallow/preferences.json"_s);
        return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object()
                                              : QJsonObject();
    }

    [[nodiscard]] bool waitForPreference(const QString& key, const QJsonValue& value)
    {
        return waitFor([&] { return preferences().value(key) == value; });
    }

    /// Runs what changes the screen, until that has come to rest.
    QImage opened(const std::function<void()>& open)
    {
        const QImage before = settledPixels();
        open();
        EXPECT_TRUE(waitFor([&] { return desktop().rootPixels() != before; }));
        return settledPixels();
    }

    /// With the first shortcut focused.
    void openShortcuts()
    {
        pixmallow({u"capture"_s, u"screen"_s, u"--wait"_s}); // Starts it, without the welcome.
        opened([this] { pixmallow({u"settings"_s}); });
        for (int page = 0; page < 4; ++page)
            desktop().key("Down");
        desktop().key("Tab");
    }
};

} // namespace

TEST_F(SettingsTest, recordsShortcutsFromTheKeyboard)
{
    openShortcuts();
    desktop().key("space");
    desktop().key("a"); // Not a shortcut.
    desktop().key("F6");
    EXPECT_TRUE(waitForPreference(u"hk.region"_s, u"97:0:F6"_s));

    desktop().key("Tab");
    desktop().key("space");
    desktop().key("Delete");
    EXPECT_TRUE(waitForPreference(u"hk.window"_s, u""_s));

    desktop().key("Tab");
    opened([] { desktop().key("space"); }); // The server has let go of the shortcuts by then.
    desktop().key("ctrl+shift+4"); // Recorded, not triggered.
    EXPECT_TRUE(waitForPreference(u"hk.screen"_s, u"21:4608:4"_s));
}

TEST_F(SettingsTest, givesTheShortcutsBackWhenTheWindowGoesWhileItRecords)
{
    openShortcuts();
    opened([] { desktop().key("space"); });
    // The window manager's, which has the keyboard to itself until the window is gone.
    opened([] { desktop().key("alt+F4"); });
    const auto before = saved().size();
    desktop().key("ctrl+shift+3");
    EXPECT_TRUE(waitFor([&] { return saved().size() > before; }));
    EXPECT_FALSE(preferences().contains(u"hk.region"_s));
}

TEST_F(SettingsTest, setsWhatTheProgramObeysAndShowsWhatOthersSet)
{
    pixmallow({u"capture"_s, u"screen"_s, u"--wait"_s});
    opened([this] { pixmallow({u"settings"_s}); });
    desktop().key("Tab");
    const QImage before = settledPixels();
    desktop().key("space"); // Save every capture: off.
    EXPECT_TRUE(waitForPreference(u"autoSave"_s, false));
    EXPECT_TRUE(capture(u"screen"_s)[u"path"].toString().isEmpty());

    auto values = preferences();
    values[u"autoSave"] = true;
    setPreferences(QJsonDocument(values).toJson());
    EXPECT_TRUE(waitFor([&] { return settledPixels() == before; })) << "the switch is on again";
    EXPECT_FALSE(capture(u"screen"_s)[u"path"].toString().isEmpty());
}

TEST_F(SettingsTest, opensThePanelAtTheIconAndTakesKeys)
{
    pixmallow({u"capture"_s, u"screen"_s, u"--wait"_s});
    const QImage before = settledPixels();
    const QPoint icon(before.width() - 17, before.height() - 15);
    const QImage panel = opened([&] { desktop().clickAt(icon); });
    const QPoint above(before.width() - 160, before.height() - 120);
    EXPECT_NE(panel.pixel(above), before.pixel(above));

    for (int row = 0; row < 3; ++row) // Region, window, screen.
        desktop().key("Down");
    const auto captures = saved().size();
    desktop().key("Return");
    ASSERT_TRUE(waitFor([&] { return saved().size() > captures; }));
    const QImage last(desktop().home() + u"/Pictures/Pixmallow/"_s + saved().last());
    EXPECT_EQ(last.pixel(above), before.pixel(above)) << "the panel is in the way";

    opened([&] { pixmallow({}); });
    desktop().clickAt({200, 200});
    desktop().moveTo(icon);
    EXPECT_TRUE(waitFor([&] { return settledPixels().pixel(above) == before.pixel(above); }));
}
