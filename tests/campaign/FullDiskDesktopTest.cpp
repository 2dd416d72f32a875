// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/TestFiles.h"
#include "tests/campaign/Outcome.h"
#include "tests/campaign/SmallDisk.h"
#include "tests/resident/ResidentDesktop.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace {

DesktopOptions smallDesktop()
{
    return {.size = {640, 480}};
}

/// The programs, with a home that is full at times.
class FullDiskDesktopTest : public ResidentDesktop<smallDesktop> {
protected:
    void SetUp() override
    {
        ResidentDesktop::SetUp();
        if (IsSkipped())
            return;
        disk = std::make_unique<SmallDisk>(desktop().home());
        if (!disk->isMounted())
            GTEST_SKIP() << "a full disk needs a small file system, and mounting one needs root";
        ResidentDesktop::SetUp(); // The preferences are to lie on that disk.
    }
    void TearDown() override
    {
        ResidentDesktop::TearDown();
        disk.reset();
    }

    static bool saysWhy(const QByteArray& text) { return text.contains("No space left on device"); }

    std::unique_ptr<SmallDisk> disk;
};

} // namespace

TEST_F(FullDiskDesktopTest, tellsThatACaptureWasNotSavedAndSavesTheNext)
{
    Outcome outcome(u"Captures on a full disk, by the programs themselves"_s);
    const auto first = capture(u"screen"_s);
    ASSERT_EQ(first[u"outcome"_s], u"done"_s);
    const QByteArray bytes = contentOf(first[u"path"_s].toString());
    for (const bool isRunning : {true, false}) { // It also starts where there is no space.
        if (!isRunning)
            pixmallow({u"quit"_s});
        disk->fill();
        const auto failed = pixmallow({u"capture"_s, u"screen"_s, u"--wait"_s, u"--json"_s});
        const auto report = QJsonDocument::fromJson(failed.output).object();
        EXPECT_TRUE(saysWhy(report[u"reason"_s].toString().toUtf8()))
            << failed.output.toStdString() << failed.errors.toStdString();
        EXPECT_EQ(report[u"path"_s].toString(), QString());
        EXPECT_EQ(saved(), QStringList(QFileInfo(first[u"path"_s].toString()).fileName()));
        const auto shot = pixmallow({u"shot"_s, u"--output"_s, desktop().home() + u"/shot.png"_s});
        EXPECT_NE(shot.exitCode, 0);
        EXPECT_TRUE(saysWhy(shot.errors)) << shot.errors.toStdString();
        EXPECT_FALSE(QFile::exists(desktop().home() + u"/shot.png"_s));
        EXPECT_EQ(contentOf(first[u"path"_s].toString()), bytes);
        disk->free();
        outcome.done += 2;
    }
    const auto next = capture(u"screen"_s);
    EXPECT_EQ(QImage(next[u"path"_s].toString()).size(), QSize(640, 480));
    const auto listed = pixmallow({u"list"_s, u"history"_s, u"--json"_s});
    QStringList paths;
    for (const auto& item : QJsonDocument::fromJson(listed.output).array())
        paths.append(item[u"path"_s].toString());
    EXPECT_TRUE(paths.contains(first[u"path"_s].toString()));
    EXPECT_TRUE(paths.contains(next[u"path"_s].toString()));
}
