// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/ShareMenu.h"

#include "platform/fake/FakePlatform.h"

#include <QApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class ShareMenuTest : public testing::Test {
protected:
    ShareMenuTest()
    {
        QObject::connect(
            &menu, &ShareMenu::told, &menu, [this](const QString& status) { told << status; });
        QObject::connect(&menu, &ShareMenu::shared, &menu, [this] { ++shared; });
    }

    void choose(const QString& title)
    {
        for (QAction* item : menu.actions())
            if (item->text() == title)
                item->trigger();
        QCoreApplication::processEvents();
    }

    QTemporaryDir folder;
    Prefs prefs {Folders {.configuration = folder.path()}, Prefs::Watch::Nothing};
    FakePlatform platform;
    Skins skins {prefs, *platform.appearance};
    Themes themes {skins, *platform.appearance};
    Result<QString> file {u"/tmp/a.png"_s};
    ShareMenu menu {{themes, *platform.workspace, *platform.clipboard, platform.words},
        [this] { return file; }};
    QStringList told;
    int shared = 0;
};

} // namespace

TEST_F(ShareMenuTest, sendsTheFileWhereItIsTold)
{
    choose(u"Mail…"_s);
    choose(u"Open With…"_s);
    choose(u"Copy File"_s);
    EXPECT_EQ(platform.fakeWorkspace().mailed, u"/tmp/a.png"_s);
    EXPECT_EQ(platform.fakeWorkspace().openedWith, u"/tmp/a.png"_s);
    EXPECT_EQ(platform.fakeClipboard().files, QStringList {u"/tmp/a.png"_s});
    EXPECT_EQ(shared, 3);
    EXPECT_EQ(told.size(), 3);
    choose(platform.words.showInFolder);
    EXPECT_EQ(platform.fakeWorkspace().revealed, u"/tmp/a.png"_s);
    EXPECT_EQ(shared, 3) << "it went nowhere";
}

TEST_F(ShareMenuTest, tellsFailuresAndIsSilentWhenTheUserCancels)
{
    platform.fakeWorkspace().result = Error::cancelled();
    choose(u"Mail…"_s);
    EXPECT_EQ(told, QStringList {u""_s});
    told.clear();
    platform.fakeWorkspace().result = Error::failed(u"No mail program."_s);
    choose(u"Mail…"_s);
    file = Error::failed(u"The disk is full."_s);
    choose(u"Copy File"_s);
    EXPECT_EQ(told, (QStringList {u"No mail program."_s, u"The disk is full."_s}));
    EXPECT_EQ(shared, 0);
}

TEST_F(ShareMenuTest, tellsThatItWasClosed)
{
    QWidget control;
    menu.openBelow(control);
    menu.close();
    QCoreApplication::processEvents();
    EXPECT_EQ(told, QStringList {u""_s});
}
