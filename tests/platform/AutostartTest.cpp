// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/Autostart.h"

#include "tests/TestFiles.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

TEST(AutostartTest, writesAnEntryThatDesktopsStartAndTakesItBack)
{
    const QTemporaryDir home;
    const QString folder = home.filePath(u"config/autostart"_s);
    EXPECT_FALSE(Autostart::isOn(folder));
    EXPECT_TRUE(Autostart::set(folder, u"/opt/100% mine/$x/pixmallow-desktop"_s, true));
    EXPECT_TRUE(Autostart::isOn(folder));
    const QString entry = folder + u"/pixmallow.desktop"_s;
    // The dollar is escaped for the quotes, its backslash for the file.
    EXPECT_TRUE(contentOf(entry).contains(
        "\nExec=\"/opt/100%% mine/\\\\$x/pixmallow-desktop\" --background\n"))
        << contentOf(entry).toStdString();

    EXPECT_TRUE(Autostart::set(folder, {}, false));
    EXPECT_FALSE(QFile::exists(entry));
    EXPECT_TRUE(Autostart::set(folder, {}, false)) << "gone already";
}

TEST(AutostartTest, takesAnEntryThatTheDesktopHasSwitchedOffForOff)
{
    const QTemporaryDir home;
    for (const QByteArray line : {"Hidden=true\n", "X-GNOME-Autostart-enabled=false\n"}) {
        ASSERT_TRUE(Autostart::set(home.path(), u"/usr/bin/pixmallow-desktop"_s, true));
        QFile file(home.filePath(u"pixmallow.desktop"_s));
        ASSERT_TRUE(file.open(QIODevice::Append));
        file.write(line);
        file.close();
        EXPECT_FALSE(Autostart::isOn(home.path())) << line.toStdString();
    }
}
