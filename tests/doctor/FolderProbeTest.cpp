// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "doctor/FolderProbe.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <unistd.h>

using namespace Qt::StringLiterals;

TEST(FolderProbeTest, triesToWriteAndLeavesNothing)
{
    const QTemporaryDir root;
    EXPECT_EQ(FolderProbe::problemOf(root.path()), QString());
    EXPECT_EQ(FolderProbe::problemOf(root.path() + u"/"_s), QString());
    EXPECT_EQ(FolderProbe::problemOf(root.filePath(u"not/yet/there"_s)), QString());
    EXPECT_TRUE(QDir(root.path()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    EXPECT_GT(FolderProbe::freeBytes(root.filePath(u"not/yet/there"_s)), 0);
}

TEST(FolderProbeTest, saysWhatIsInTheWay)
{
    const QTemporaryDir root;
    const QString path = root.filePath(u"file"_s);
    ASSERT_TRUE(QFile(path).open(QIODevice::WriteOnly));
    for (const auto& folder : {path, path + u"/below"_s})
        EXPECT_TRUE(FolderProbe::problemOf(folder).contains(path)) << folder.toStdString();
    EXPECT_TRUE(FolderProbe::problemOf(u"/proc/self"_s).contains(u"written"_s))
        << "whatever permissions say";
    if (geteuid() == 0)
        return; // Permissions do not hold for root.
    const QString locked = root.filePath(u"locked"_s);
    ASSERT_TRUE(QDir().mkdir(locked));
    ASSERT_TRUE(QFile::setPermissions(locked, QFile::ReadOwner | QFile::ExeOwner));
    EXPECT_NE(FolderProbe::problemOf(locked), QString());
    EXPECT_TRUE(FolderProbe::problemOf(locked + u"/new"_s).contains(locked));
}
