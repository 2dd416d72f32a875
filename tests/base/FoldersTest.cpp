// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/Folders.h"

#include "tests/TestFiles.h"

#include <QTemporaryDir>

#include <unistd.h>

using namespace Qt::StringLiterals;

TEST(FoldersTest, followTheVariablesOfTheSession)
{
    const QTemporaryDir root;
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(root.filePath(u"config"_s)));
    qputenv("XDG_DATA_HOME", QFile::encodeName(root.filePath(u"data"_s)));
    qputenv("XDG_CACHE_HOME", "relative/is/ignored");
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(root.path()));
    const auto folders = Folders::ofUser();
    EXPECT_EQ(folders.configuration, root.filePath(u"config/Pixmallow"_s));
    EXPECT_EQ(folders.data, root.filePath(u"data/Pixmallow"_s));
    EXPECT_EQ(folders.cache, QDir::homePath() + u"/.cache/Pixmallow"_s);
    EXPECT_EQ(folders.runtime, root.filePath(u"pixmallow"_s));

    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(root.filePath(u"gone"_s)));
    EXPECT_EQ(
        Folders::ofUser().runtime, u"%1/pixmallow-%2"_s.arg(folders.temporary).arg(geteuid()));
}

TEST(FoldersTest, aPrivateFolderIsTheOwnersAloneOrRefused)
{
    const QTemporaryDir root;
    const QString folder = root.filePath(u"new/deep/folder"_s);
    EXPECT_TRUE(ensurePrivateFolder(folder));
    EXPECT_EQ(modeOf(folder), 0700);
    ASSERT_EQ(chmod(QFile::encodeName(folder).constData(), 0755), 0);
    EXPECT_TRUE(ensurePrivateFolder(folder + u'/'));
    EXPECT_EQ(modeOf(folder), 0700);

    const QString file = root.filePath(u"file"_s);
    put(file, {});
    const auto overFile = ensurePrivateFolder(file);
    ASSERT_FALSE(overFile);
    EXPECT_EQ(overFile.error().message, u"Couldn't use the folder “%1”: it is a file."_s.arg(file));
    const auto underFile = ensurePrivateFolder(file + u"/folder"_s);
    ASSERT_FALSE(underFile);
    EXPECT_TRUE(underFile.error().message.endsWith(u"Not a directory."_s));
}

TEST(FoldersTest, aFolderOfAnotherUserIsNotPrivate)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can make a folder that is another user's";
    const QTemporaryDir root;
    const QString folder = root.filePath(u"planted"_s);
    ASSERT_TRUE(ensurePrivateFolder(folder));
    const QString link = root.filePath(u"link"_s);
    ASSERT_TRUE(QFile::link(folder, link));
    ASSERT_EQ(lchown(QFile::encodeName(link).constData(), 65534, 65534), 0);
    EXPECT_FALSE(ensurePrivateFolder(link));
    ASSERT_EQ(chown(QFile::encodeName(folder).constData(), 65534, 65534), 0);
    EXPECT_FALSE(ensurePrivateFolder(folder));
}
