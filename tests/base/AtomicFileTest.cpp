// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/AtomicFile.h"

#include "tests/TestFiles.h"

#include <QTemporaryDir>

#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <string>
#include <thread>

using namespace Qt::StringLiterals;
using Existing = AtomicFile::Existing;
using Access = AtomicFile::Access;

namespace {

constexpr AtomicFile::Options keep {Existing::Keep};
constexpr AtomicFile::Options replace {Existing::Replace};

std::span<const std::uint8_t> bytesOf(const QByteArray& content)
{
    return {
        reinterpret_cast<const std::uint8_t*>(content.constData()), std::size_t(content.size())};
}

class AtomicFileTest : public testing::Test {
protected:
    QString path(const QString& name) const { return m_folder.filePath(name); }
    std::string names(QDir::Filters hidden = QDir::Hidden) const
    {
        const auto all = QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot;
        return QDir(m_folder.path()).entryList(all | hidden).join(u' ').toStdString();
    }

    const QTemporaryDir m_folder;
};

} // namespace

TEST_F(AtomicFileTest, leavesTheFolderAsItWasUntilCommitted)
{
    ASSERT_TRUE(writeFile(path(u"shot.png"_s), "old", keep));
    for (const auto& options : {keep, replace})
        for (const auto& name : {u"shot.png"_s, u"other.png"_s}) {
            AtomicFile file(path(name), options);
            EXPECT_EQ(
                bool(file.open()), !(name == u"shot.png"_s && options.existing == Existing::Keep));
            std::ignore = file.write(bytesOf("new"));
            EXPECT_EQ(names({}), "shot.png");
        }
    EXPECT_EQ(names(), "shot.png");
    EXPECT_EQ(contentOf(path(u"shot.png"_s)), "old");
}

TEST_F(AtomicFileTest, keepsTheOldFileWhenTheMediumTakesNoMore)
{
    ASSERT_TRUE(writeFile(path(u"shot.png"_s), "old", keep));
    rlimit before {};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small {65536, before.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &small);
    AtomicFile file(path(u"shot.png"_s), replace);
    EXPECT_TRUE(file.open());
    const auto written = file.write(bytesOf(QByteArray(100000, 'x')));
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);

    ASSERT_FALSE(written);
    EXPECT_EQ(written.error().message,
        u"Couldn't write “%1”: File too large."_s.arg(path(u"shot.png"_s)));
    EXPECT_FALSE(file.write(bytesOf("more")));
    EXPECT_FALSE(file.commit()) << "a file with a hole in the middle";
    EXPECT_EQ(contentOf(path(u"shot.png"_s)), "old");
}

TEST_F(AtomicFileTest, keepNeverReplacesWhateverHasTheName)
{
    AtomicFile late(path(u"shot.png"_s), keep);
    ASSERT_TRUE(late.open());
    ASSERT_TRUE(writeFile(path(u"shot.png"_s), "old", keep));
    const auto committed = late.commit();
    ASSERT_FALSE(committed);
    EXPECT_EQ(committed.error().kind, Error::Kind::Exists);
    EXPECT_EQ(contentOf(path(u"shot.png"_s)), "old");

    ASSERT_TRUE(QFile::link(u"nowhere"_s, path(u"link"_s)));
    const auto overLink = writeFile(path(u"link"_s), "new", keep);
    ASSERT_FALSE(overLink);
    EXPECT_EQ(overLink.error().kind, Error::Kind::Exists);
    EXPECT_FALSE(QFile::exists(path(u"nowhere"_s)));
}

TEST_F(AtomicFileTest, replacesWhatALinkPointsAtAndKeepsItsPermissions)
{
    ASSERT_TRUE(QDir(m_folder.path()).mkdir(u"real"_s));
    ASSERT_TRUE(writeFile(path(u"real/file"_s), "old", keep));
    ASSERT_EQ(chmod(QFile::encodeName(path(u"real/file"_s)).constData(), 0664), 0);
    ASSERT_TRUE(QFile::link(u"real/file"_s, path(u"one"_s)));
    ASSERT_TRUE(QFile::link(u"one"_s, path(u"two"_s)));

    ASSERT_TRUE(writeFile(path(u"two"_s), "new", replace));
    EXPECT_TRUE(QFileInfo(path(u"two"_s)).isSymLink());
    EXPECT_TRUE(QFileInfo(path(u"one"_s)).isSymLink());
    EXPECT_EQ(contentOf(path(u"real/file"_s)), "new");
    EXPECT_EQ(modeOf(path(u"real/file"_s)), 0664);

    ASSERT_TRUE(writeFile(path(u"two"_s), "secret", {Existing::Replace, Access::OwnerOnly}));
    EXPECT_EQ(modeOf(path(u"real/file"_s)), 0600);
    ASSERT_TRUE(writeFile(path(u"secret"_s), "", {Existing::Keep, Access::OwnerOnly}));
    EXPECT_EQ(modeOf(path(u"secret"_s)), 0600);
    const mode_t mask = umask(027);
    EXPECT_TRUE(writeFile(path(u"plain"_s), "", keep));
    umask(mask);
    EXPECT_EQ(modeOf(path(u"plain"_s)), 0640);
}

TEST_F(AtomicFileTest, writesStraightIntoWhatIsNoRegularFile)
{
    const QByteArray fifo = QFile::encodeName(path(u"fifo"_s));
    ASSERT_EQ(mkfifo(fifo.constData(), 0600), 0);
    for (const auto& options : {keep, replace}) {
        std::jthread writer([&] { EXPECT_TRUE(writeFile(path(u"fifo"_s), "through", options)); });
        EXPECT_EQ(contentOf(path(u"fifo"_s)), "through");
    }
    EXPECT_EQ(names(), "fifo");
    EXPECT_TRUE(writeFile(u"/dev/null"_s, "away", replace));

    // Standard output appended to a file goes on where that stood, and is not replaced.
    ASSERT_TRUE(writeFile(path(u"log"_s), "before ", keep));
    testing::internal::CaptureStdout();
    ASSERT_EQ(::write(STDOUT_FILENO, "before ", 7), 7);
    const auto written = writeFile(u"/dev/stdout"_s, "through", replace);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "before through");
    EXPECT_TRUE(written);
}

TEST_F(AtomicFileTest, saysWhichPathAndWhy)
{
    const auto complaint = [](const QString& path, AtomicFile::Options options = replace) {
        const auto result = writeFile(path, "bytes", options);
        return result ? u"none"_s : result.error().message;
    };
    const QString missing = path(u"missing"_s);
    EXPECT_EQ(complaint(missing + u"/shot.png"_s),
        u"Couldn't write “%1/shot.png”: the folder “%1” does not exist."_s.arg(missing));
    EXPECT_EQ(
        complaint(m_folder.path()), u"Couldn't write “%1”: it is a folder."_s.arg(m_folder.path()));
    EXPECT_EQ(complaint(missing + u'/'), u"Couldn't write “%1/”: it is a folder."_s.arg(missing));
    EXPECT_EQ(complaint(u"/dev/full"_s), u"Couldn't write “/dev/full”: No space left on device."_s);
    ASSERT_TRUE(QFile::link(u"missing/shot.png"_s, path(u"astray"_s)));
    EXPECT_EQ(complaint(path(u"astray"_s)),
        u"Couldn't write “%1”: No such file or directory."_s.arg(path(u"astray"_s)));
    ASSERT_TRUE(QFile::link(u"round"_s, path(u"round"_s)));
    EXPECT_EQ(complaint(path(u"round"_s)),
        u"Couldn't write “%1”: Too many levels of symbolic links."_s.arg(path(u"round"_s)));
    EXPECT_NE(complaint(QString()), u"none"_s);
}
