// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/resident/ResidentDesktop.h"

#include <gmock/gmock.h>

#include <QJsonArray>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

DesktopOptions withTray()
{
    return {.tray = true};
}

/// The left one at two pixels per point, the right one at one and a quarter.
DesktopOptions mixedMonitors()
{
    return {.size = {2304, 900},
        .monitors = {{u"L"_s, {0, 0, 1280, 800}, 2}, {u"R"_s, {1280, 50, 1024, 768}, 1.25}},
        .compositor = Compositor::Picom};
}

template <DesktopOptions (*options)()>
class DoctorDesktop : public ResidentDesktop<options> {
protected:
    struct Found {
        int exitCode;
        QMap<QString, QJsonObject> checks; ///< By their ids.

        QStringList wrong() const
        {
            QStringList ids;
            for (const auto& check : checks)
                if (!check[u"ok"].toBool())
                    ids << check[u"id"].toString();
            return ids;
        }
    };

    void SetUp() override
    {
        ResidentDesktop<options>::SetUp();
        if (!testing::Test::IsSkipped())
            this->setPreferences(R"({"playSound":false})"); // There is no sound server.
    }

    /// @param changes of the environment, as env takes them.
    Found examine(const QStringList& changes = {})
    {
        const QStringList command {this->desktop().find(u"pixmallow"_s), u"doctor"_s, u"--json"_s};
        const auto finished = this->desktop().run(u"env"_s, changes + command);
        EXPECT_TRUE(finished);
        Found found {finished ? finished->exitCode : -1, {}};
        const auto output = finished ? finished->output : QByteArray();
        for (const auto& check : QJsonDocument::fromJson(output).array())
            found.checks.insert(check.toObject()[u"id"].toString(), check.toObject());
        EXPECT_FALSE(found.checks.isEmpty());
        return found;
    }

    static QString detail(const Found& found, const QString& id)
    {
        return found.checks[id][u"detail"].toString();
    }
};

using DoctorTest = DoctorDesktop<withTray>;
using MixedDoctorTest = DoctorDesktop<mixedMonitors>;

/// Ctrl+Shift+2, taken by the connection that the test itself has.
class TakenShortcut final {
public:
    explicit TakenShortcut(const XDisplay& display)
        : m_display(display)
    {
        xcb_grab_key(display.connection(), 0, display.screen().root, mask, key, XCB_GRAB_MODE_ASYNC,
            XCB_GRAB_MODE_ASYNC);
        sync();
    }
    ~TakenShortcut()
    {
        xcb_ungrab_key(m_display.connection(), key, m_display.screen().root, mask);
        sync();
    }
    TakenShortcut(const TakenShortcut&) = delete;
    TakenShortcut& operator=(const TakenShortcut&) = delete;

private:
    static constexpr xcb_keycode_t key = 11;
    static constexpr std::uint16_t mask = XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_SHIFT;

    void sync() const { std::ignore = m_display.pointer(); }

    const XDisplay& m_display;
};

} // namespace

TEST_F(DoctorTest, findsNothingWrongAndLeavesEverythingAsItIs)
{
    const auto copied = desktop().launch(
        u"xclip"_s, {u"-quiet"_s, u"-selection"_s, u"clipboard"_s, u"-i"_s, u"/etc/hostname"_s});
    ASSERT_TRUE(copied);
    ASSERT_TRUE(waitFor([] { return desktop().isOwned("CLIPBOARD"); }));
    const auto before = settledPixels();

    const auto found = examine();
    EXPECT_THAT(found.wrong(), IsEmpty());
    EXPECT_EQ(found.exitCode, 0);
    EXPECT_TRUE(detail(found, u"screen.1"_s).contains(u"exactly"_s));
    EXPECT_EQ(detail(found, u"shortcut.region"_s), u"Ctrl+Shift+1 is free."_s);
    EXPECT_TRUE(found.checks[u"screen.2"_s].isEmpty());

    EXPECT_TRUE((*copied)->isRunning()) << "what was copied has lost its owner";
    EXPECT_EQ(settledPixels(), before);
    EXPECT_FALSE(QDir(desktop().home() + u"/Pictures/Pixmallow"_s).exists());

    const auto text = pixmallow({u"doctor"_s});
    EXPECT_EQ(text.exitCode, 0);
    EXPECT_TRUE(text.output.endsWith("All is well.\n")) << text.output.toStdString();
}

TEST_F(DoctorTest, tellsWhichShortcutAnotherProgramHas)
{
    {
        const TakenShortcut taken(desktop());
        EXPECT_THAT(examine().wrong(), ElementsAre(u"shortcut.window"_s));
        EXPECT_EQ(capture(u"screen"_s)[u"outcome"_s], u"done"_s);
    }
    // The one that runs has not got it even now, and the others are its own.
    const auto found = examine();
    EXPECT_THAT(found.wrong(), ElementsAre(u"shortcut.window"_s));
    EXPECT_EQ(found.exitCode, 1);
    EXPECT_TRUE(detail(found, u"shortcut.window"_s).contains(u"another program"_s));
    EXPECT_EQ(detail(found, u"shortcut.region"_s), u"Ctrl+Shift+1 works."_s);
    pixmallow({u"quit"_s});
    EXPECT_THAT(examine().wrong(), IsEmpty());
}

TEST_F(DoctorTest, saysWhatToDoAboutFoldersAndPreferences)
{
    setPreferences(R"({"playSound":true,"saveFolder":"/proc/self","hk.region":""})");
    const auto found = examine({u"PULSE_SERVER=unix:/nowhere"_s});
    EXPECT_THAT(found.wrong(), ElementsAre(u"folder.pictures"_s, u"sound"_s, u"space"_s));
    for (const auto& id : found.wrong())
        EXPECT_FALSE(found.checks[id][u"advice"].toString().isEmpty());
    EXPECT_EQ(detail(found, u"shortcut.region"_s), u"None is set."_s);
}

TEST_F(DoctorTest, worksWhereThereIsNoDesktop)
{
    const auto found = examine({u"-u"_s, u"DISPLAY"_s});
    EXPECT_EQ(found.exitCode, 1);
    EXPECT_THAT(found.wrong(), ElementsAre(u"desktop"_s));
    EXPECT_GT(found.checks.size(), 5) << "all else is examined";
}

TEST_F(MixedDoctorTest, examinesEachScreenInItsOwnPixels)
{
    const auto found = examine();
    EXPECT_THAT(found.wrong(), ElementsAre(u"tray"_s));
    EXPECT_TRUE(detail(found, u"screen.1"_s).startsWith(u"1280 × 800 pixels at scale 2."_s));
    EXPECT_TRUE(detail(found, u"screen.2"_s).startsWith(u"1024 × 768 pixels at scale 1.25."_s));
    EXPECT_TRUE(detail(found, u"compositor"_s).startsWith(u"One runs"_s));
}
