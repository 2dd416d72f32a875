// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/resident/ResidentDesktop.h"

#include "platform/x11/Reply.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace {

constexpr QRgb backdrop = 0xff203040;

class HistoryWindowTest : public ResidentDesktop<plainDesktop> {
protected:
    void SetUp() override
    {
        ResidentDesktop::SetUp();
        if (IsSkipped())
            return;
        const auto& screen = desktop().screen();
        QImage plain(screen.width_in_pixels, screen.height_in_pixels, QImage::Format_RGB32);
        plain.fill(backdrop);
        desktop().setRootPicture(plain);
        ASSERT_TRUE(desktop().waitForPixel({0, 0}, backdrop));
        desktop().moveTo({5, 5});
    }

    static xcb_window_t active()
    {
        const auto window = desktop().property(desktop().screen().root, "_NET_ACTIVE_WINDOW");
        return window.empty() ? XCB_NONE : window[0];
    }
    /// Whether a window of ours comes to the front and has the keyboard.
    bool opens(const QString& command)
    {
        const auto before = active();
        EXPECT_EQ(pixmallow({command}).exitCode, 0);
        return waitFor([before] { return active() != XCB_NONE && active() != before; });
    }
    static bool closes(xcb_window_t window)
    {
        return waitFor([window] {
            auto* const xcb = desktop().connection();
            const auto reply = owned(xcb_get_window_attributes_reply(
                xcb, xcb_get_window_attributes(xcb, window), nullptr));
            return !reply || reply->map_state != XCB_MAP_STATE_VIEWABLE;
        });
    }
    QJsonArray list(const QStringList& options = {})
    {
        const auto finished
            = pixmallow(QStringList {u"list"_s, u"history"_s, u"--json"_s} + options);
        EXPECT_EQ(finished.exitCode, 0) << finished.errors.toStdString();
        return QJsonDocument::fromJson(finished.output).array();
    }
    QJsonObject stats()
    {
        QFile file(desktop().home() + u"/.local/share/Pixmallow/stats.json"_s);
        return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object()
                                              : QJsonObject();
    }
};

} // namespace

TEST_F(HistoryWindowTest, isUsedWithTheKeyboardAloneAndListedForScripts)
{
    const QString kept = capture(u"screen"_s)[u"historyId"].toString();
    capture(u"screen"_s);
    ASSERT_TRUE(opens(u"history"_s));
    const auto window = active();
    EXPECT_EQ(pixmallow({u"history"_s}).exitCode, 0); // Once more: it is the same one.
    EXPECT_EQ(active(), window);
    desktop().key("Down"); // From the field to the newest card.
    desktop().key("Delete");
    ASSERT_TRUE(waitFor([&] { return list().size() == 1; })) << list().size();
    EXPECT_EQ(list()[0][u"id"].toString(), kept);
    EXPECT_EQ(saved().size(), 2); // The user's files are the user's.

    desktop().key("ctrl+f");
    desktop().typeKeys("nothing like that");
    desktop().key("Escape");
    desktop().key("Escape");
    EXPECT_TRUE(closes(window));
    EXPECT_EQ(list({u"--search"_s, u"SCREENSHOT"_s}).size(), 1);
    pixmallow({u"quit"_s});
    EXPECT_EQ(list({u"--search"_s, u"screen"_s}).size(), 1); // By nobody but the files.
    EXPECT_EQ(list({u"--search"_s, u"elephant"_s}).size(), 0);
}

TEST_F(HistoryWindowTest, thePetIsRenamedWithTheKeyboardAlone)
{
    capture(u"screen"_s);
    ASSERT_TRUE(opens(u"gallery"_s));
    const auto window = active();
    // It is the active window a moment before it has the keyboard; keys until then go nowhere.
    const auto isRenamed = [&] { return stats()[u"petName"].toString() == u"Mochi"_s; };
    for (int tries = 0; tries < 3 && !isRenamed(); ++tries) {
        desktop().key("Tab"); // The first control.
        desktop().key("space");
        desktop().typeKeys("Mochi\n");
        std::ignore = waitFor(isRenamed, std::chrono::seconds(3));
    }
    EXPECT_TRUE(isRenamed());
    desktop().key("Tab");
    desktop().key("Right");
    desktop().key("Down");
    desktop().key("Escape");
    EXPECT_TRUE(closes(window));
}

TEST_F(HistoryWindowTest, whatIsUnlockedIsToldWhenNobodyHasTheScreenToItself)
{
    setPreferences(R"({"afterCapture":"none","captureAnimation":"none"})");
    const QPoint corner(1280 - 16 - 150, 16 + 8); // On a pop-up's card, above its text.
    const auto shown = [&](QRgb ground) {
        return desktop().rootPixels(QRect(corner, QSize(1, 1))).pixel(0, 0) != ground;
    };
    auto film = openWindow(desktop(), {u"--fullscreen"_s});
    ASSERT_TRUE(film.client);
    const QRgb ground = desktop().rootPixels(QRect(corner, QSize(1, 1))).pixel(0, 0);
    capture(u"screen"_s);
    ASSERT_TRUE(waitFor([&] { return stats()[u"unlocked"].toArray().contains(u"first"_s); }));
    EXPECT_FALSE(waitFor([&] { return shown(ground); }, std::chrono::seconds(2)));
    film.client.reset();
    EXPECT_TRUE(waitFor([&] { return shown(ground) && shown(backdrop); }));
}
