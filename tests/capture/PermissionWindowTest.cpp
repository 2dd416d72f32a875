// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "capture/PermissionWindow.h"

#include "tests/capture/SurfaceTest.h"

#include <gmock/gmock.h>

#include <QDeadlineTimer>

using namespace Qt::StringLiterals;

namespace {

class PermissionWindowTest : public SurfaceTest {
protected:
    static PermissionView& view() { return *qobject_cast<PermissionView*>(shown().first()); }
    static QStringList texts()
    {
        QStringList texts;
        for (const auto* label : view().findChildren<TextLabel*>())
            texts << label->text();
        for (const auto* button : view().findChildren<GlassButton*>())
            if (button->isVisible())
                texts << button->text();
        return texts;
    }
    static void press(const QString& button)
    {
        for (auto* each : view().findChildren<GlassButton*>())
            if (each->text() == button)
                each->click();
    }
    static bool eventually(const std::function<bool()>& isTrue)
    {
        const QDeadlineTimer deadline(5000);
        while (!isTrue() && !deadline.hasExpired())
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        return isTrue();
    }

    FakePlatform platform;
    QString shortcut = u"Ctrl+Shift+1"_s;
    bool hasTray = true;
    PermissionWindow window {{themes, *platform.capture, *platform.workspace, platform.words,
        [this] { return shortcut; }, [this] { return hasTray; }}};
};

} // namespace

TEST_F(PermissionWindowTest, followsThePermissionOnlyWhileItIsShown)
{
    platform.fakeCapture().isPermitted = false;
    window.show();
    window.show();
    ASSERT_EQ(shown().size(), 1);
    EXPECT_EQ(view().size(), QSize(460, 420));
    EXPECT_THAT(texts(),
        testing::IsSupersetOf(
            {u"Allow screen capture"_s, u"Open System Settings"_s, u"Restart Pixmallow"_s}));
    platform.fakeCapture().isPermitted = true;
    EXPECT_TRUE(eventually([] { return texts().contains(u"You're all set"_s); }));
    EXPECT_FALSE(texts().contains(u"Restart Pixmallow"_s));

    PermissionView& same = view();
    press(u"Get Started"_s);
    EXPECT_TRUE(shown().isEmpty());
    for (const auto* timer : same.findChildren<QTimer*>())
        EXPECT_FALSE(timer->isActive());
    platform.fakeCapture().isPermitted = false;
    window.show();
    EXPECT_EQ(&view(), &same);
    EXPECT_TRUE(texts().contains(u"Allow screen capture"_s)) << "looks again at once";
}

TEST_F(PermissionWindowTest, tellsTheRealShortcutAndWhereTheProgramIs)
{
    platform.words.home = {u"Tray, %1."_s, u"Tray."_s};
    platform.words.homeWithoutTray = {u"No tray, %1."_s, u"Nothing."_s};
    shortcut = u"Ctrl+<"_s;
    const auto text = [] { return texts().at(1); };
    window.show();
    EXPECT_THAT(text().toStdString(), testing::HasSubstr("Tray, "));
    EXPECT_THAT(text().toStdString(), testing::HasSubstr(">Ctrl+&lt;<"));
    hasTray = false;
    EXPECT_TRUE(eventually([&] { return text().contains(u"No tray, "_s); }));
    shortcut.clear();
    EXPECT_TRUE(eventually([&] { return text().contains(u"Nothing."_s); }));
}

TEST_F(PermissionWindowTest, opensTheSettingsAndStartsTheProgramAgain)
{
    platform.fakeCapture().isPermitted = false;
    platform.fakeWorkspace().result = Error::failed(u"There are none."_s);
    window.show();
    press(u"Open System Settings"_s);
    EXPECT_EQ(platform.fakeWorkspace().settingsOpened, 1);
    QTimer::singleShot(0, qApp, [] { press(u"Restart Pixmallow"_s); });
    QCoreApplication::exec(); // Until it quits.
    EXPECT_EQ(platform.fakeWorkspace().relaunches, 1);
}
