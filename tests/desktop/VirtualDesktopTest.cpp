// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/desktop/DesktopTest.h"

using VirtualDesktopTest = DesktopTest<>;

TEST_F(VirtualDesktopTest, showsTheFocusedClientWhatIsTyped)
{
    ClientWindow window = open({QStringLiteral("--pattern"), QStringLiteral("7")});
    ASSERT_TRUE(window.client);
    EXPECT_EQ(window.geometry, QRect(100, 100, 400, 300));
    const QImage seen = desktop().rootPixels(window.geometry);
    const QImage expected = pictureOf({.seed = 7}, window.geometry.size());
    EXPECT_EQ(seen, expected.convertToFormat(QImage::Format_RGB32));
    EXPECT_FALSE(window.client->waitForLine("focus in").isNull());
    desktop().key("ctrl+shift+1");
    EXPECT_EQ(window.client->waitForLine("key ctrl+shift+"), "key ctrl+shift+1");
    desktop().typeKeys("A");
    EXPECT_FALSE(window.client->waitForLine("key shift+a").isNull())
        << window.client->output().toStdString();
}
