// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "ui/TrayItem.h"

#include "app/AppState.h"
#include "platform/fake/FakePlatform.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

/// Text and tooltip of the menu's actions, a line each.
QStringList shown(const QMenu& menu)
{
    QStringList lines;
    for (const auto* action : menu.actions())
        if (!action->isSeparator())
            lines << action->text() + u" | "_s + action->toolTip();
    return lines;
}

} // namespace

TEST(TrayItemTest, tellsTheShortcutsInSignsAndInWords)
{
    const QTemporaryDir folder;
    Prefs prefs(Folders {.configuration = folder.filePath(u"config"_s)}, Prefs::Watch::Nothing);
    prefs.registerDefaults();
    FakePlatform platform;
    HotkeyCenter hotkeys(*platform.hotkeys);
    CaptureStages stages;
    stages.countDown = [](int) { return Pending<void>::answered({}); };
    AppState state(platform, prefs, hotkeys, stages);
    Skins skins(prefs, *platform.appearance);
    const Themes themes(skins, *platform.appearance);
    const Fun fun({.data = folder.filePath(u"data"_s)}, prefs);
    const TrayItem tray(state, prefs, fun, themes);
    EXPECT_EQ(shown(tray.menu()),
        QStringList({u"Capture window\t⌃⇧2 | Capture window, Ctrl+Shift+2"_s,
            u"Capture screen\t⌃⇧3 | Capture screen, Ctrl+Shift+3"_s,
            u"Delayed capture (3 s)\t⌃⇧4 | Delayed capture (3 s), Ctrl+Shift+4"_s,
            u"Settings… | Settings…"_s, u"Quit Pixmallow | Quit Pixmallow"_s}));

    prefs.set(Prefs::keys.hkWindow, u"36:2304:↩"_s);
    prefs.set(Prefs::keys.hkScreen, QString());
    prefs.set(Prefs::keys.delaySeconds, 10);
    EXPECT_EQ(shown(tray.menu()).first(3),
        QStringList({u"Capture window\t⌥⌘↩ | Capture window, Alt+Super+Return"_s,
            u"Capture screen | Capture screen"_s,
            u"Delayed capture (10 s)\t⌃⇧4 | Delayed capture (10 s), Ctrl+Shift+4"_s}));
}

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
