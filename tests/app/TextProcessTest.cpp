// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "app/TextProcess.h"

#include "tests/TestFiles.h"

#include <QDeadlineTimer>
#include <QTemporaryDir>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

class TextProcessTest : public testing::Test {
protected:
    /// A program that stands in for the one that reads.
    QString program(const QByteArray& commands)
    {
        const QString path = folder.filePath(u"program"_s);
        put(path, "#!/bin/sh\n" + commands);
        QFile(path).setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return path;
    }

    const QTemporaryDir folder;
};

} // namespace

TEST_F(TextProcessTest, readsWithWhatNobodyElseWantsOfTheProcessor)
{
    // Field 41 is the scheduling policy; the words are what the program is called with.
    TextProcess idle(
        program(R"(echo "{\"text\":\"$(cut -d' ' -f41 /proc/$$/stat) $*\",\"lines\":1}"; exit 2)"));
    const auto read = idle.read(u"a b.png"_s).wait();
    ASSERT_TRUE(read) << read.error().message.toStdString();
    EXPECT_EQ(read->text, u"5 --text --json -- a b.png"_s);

    TextProcess failing(program(R"(echo '{"reason":"It is no picture."}'; exit 2)"));
    EXPECT_EQ(failing.read(u"a"_s).wait().error().message, u"It is no picture."_s);
    TextProcess missing(folder.filePath(u"nowhere"_s));
    EXPECT_FALSE(missing.read(u"a"_s).wait());
}

TEST_F(TextProcessTest, canBeGivenUpAtAnyMoment)
{
    const QString number = folder.filePath(u"number"_s);
    TextProcess reader(program("echo $$ > " + number.toUtf8() + "; exec sleep 100"));
    auto pending = reader.read(u"a"_s);
    const QDeadlineTimer deadline(10'000);
    while (!contentOf(number).endsWith('\n') && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    const pid_t process = contentOf(number).trimmed().toInt();
    ASSERT_GT(process, 0);
    reader.giveUp();
    EXPECT_TRUE(pending.wait().error().isCancelled());
    while (kill(process, 0) == 0 && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    EXPECT_NE(kill(process, 0), 0);
}
