// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "fun/Fun.h"

#include "tests/TestFiles.h"
#include "tests/TestUser.h"

#include <gmock/gmock.h>
#include <sys/resource.h>

#include <csignal>

using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

/// While no file can grow.
template <typename Work>
void onFullDisk(Work work)
{
    rlimit before {};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit none {0, before.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &none);
    work();
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
}

class FunTest : public testing::Test, protected TestUser {
protected:
    std::unique_ptr<Fun> start()
    {
        return std::make_unique<Fun>(
            folders, prefs, FunSurroundings {[this] { return m_now; }, [](int) { return 0; }});
    }
    FunStats stored() const
    {
        return FunStats::fromJson(contentOf(m_path)).value_or(FunStats {.total = -1});
    }
    QStringList damaged() const
    {
        QStringList paths;
        const QDir folder(folders.data);
        for (const auto& name : folder.entryList(QDir::AllEntries | QDir::System, QDir::Name))
            if (name.startsWith(u"stats.json.damaged-"_s))
                paths << folder.filePath(name);
        return paths;
    }

    const QString m_path = folders.data + u"/stats.json"_s;
    QDateTime m_now {QDate(2026, 3, 7), QTime(23, 59, 59)};
};

} // namespace

TEST_F(FunTest, whatWasCountedOutlivesTheProgram)
{
    {
        const auto fun = start();
        EXPECT_FALSE(QFile::exists(folders.data)) << "the history may have one to move there";
        fun->capture();
        fun->flush();
        EXPECT_EQ(stored(), fun->stats());
        EXPECT_THAT(stored().unlocked, ElementsAre(u"first"_s));
        m_now = m_now.addSecs(1);
        EXPECT_EQ(fun->today(), 0);
        EXPECT_EQ(fun->streak(), 1);
        fun->capture();
        EXPECT_EQ(fun->today(), 1);
        fun->record(FunDeed::FacesCovered, 4);
        fun->rename(u"  "_s);
        fun->rename(u" Mochi "_s);
    }
    EXPECT_EQ(modeOf(m_path), 0600u);

    const auto fun = start();
    EXPECT_EQ(fun->stats().total, 2);
    EXPECT_EQ(fun->stats().facesCovered, 4);
    EXPECT_EQ(fun->stats().xp, 10 + 30 + 12);
    EXPECT_EQ(fun->stats().lastCapture, m_now);
    EXPECT_EQ(fun->stageName(), u"Hatchling"_s);
    fun->reset();
    fun->flush();
    EXPECT_EQ(stored(), FunStats {.petName = u"Mochi"_s});
    EXPECT_EQ(QDir(folders.data).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

TEST_F(FunTest, announcesAndQueuesButShowsNothing)
{
    const auto fun = start();
    QStringList heard;
    const auto note = [&](const QString& what) { heard << what; };
    QObject::connect(fun.get(), &Fun::hopped, [&](int hop) { note(u"hop %1"_s.arg(hop)); });
    QObject::connect(
        fun.get(), &Fun::reacted, [&](const PetReaction& reaction) { note(reaction.line); });
    QObject::connect(fun.get(), &Fun::popUpQueued, [&] { note(u"pop-up"_s); });
    QObject::connect(fun.get(), &Fun::statsChanged, [&] { note(u"stats"_s); });
    fun->capture();
    EXPECT_THAT(heard, ElementsAre(u"ate that"_s, u"hop 1"_s, u"pop-up"_s, u"stats"_s));
    EXPECT_EQ(fun->takeReaction(), (PetReaction {u"🥚"_s, u"ate that"_s, 10}));
    EXPECT_FALSE(fun->takeReaction());

    fun->record(FunDeed::FacesCovered, 20);
    QStringList texts;
    while (const auto popUp = fun->takePopUp())
        texts << popUp->text;
    EXPECT_THAT(texts, ElementsAre(u"First Snap"_s, u"Pixie is now a Hatchling"_s, u"Incognito"_s));

    heard.clear();
    prefs.set(Prefs::keys.achievementToasts, false);
    fun->record(FunDeed::MemeAdded, 10);
    EXPECT_THAT(heard, ElementsAre(u"stats"_s));
    EXPECT_FALSE(fun->takePopUp());
    EXPECT_THAT(fun->stats().unlocked, ElementsAre(u"first"_s, u"incognito"_s, u"meme"_s));
}

TEST_F(FunTest, neverReplacesAFileItCannotRead)
{
    ASSERT_TRUE(QDir().mkpath(folders.data));
    for (const auto& text : {"", "{\"total\": 5}", "oops"}) {
        put(m_path, text);
        const auto fun = start();
        EXPECT_EQ(fun->stats(), FunStats());
        EXPECT_EQ(contentOf(m_path), text) << "as long as nothing is written";
        fun->capture();
        fun->capture();
        fun->flush();
        EXPECT_EQ(stored().total, 2);
        ASSERT_TRUE(QFile::remove(m_path));
    }
    QByteArrayList contents;
    for (const auto& path : damaged())
        contents << contentOf(path);
    EXPECT_THAT(contents, testing::UnorderedElementsAre("", "{\"total\": 5}", "oops"));

    const auto fun = start();
    put(m_path, FunStats {.total = 99}.toJson()); // Put back from somewhere meanwhile.
    fun->capture();
    fun->flush();
    EXPECT_EQ(stored().total, 1);
    EXPECT_EQ(damaged().size(), 4);

    ASSERT_TRUE(QFile::remove(m_path));
    ASSERT_EQ(mkfifo(QFile::encodeName(m_path).constData(), 0600), 0);
    start()->capture();
    EXPECT_EQ(stored().total, 1);
    ASSERT_TRUE(QFile::remove(m_path));
    ASSERT_TRUE(QDir().mkpath(m_path));
    start()->capture();
    EXPECT_EQ(stored().total, 1);
    EXPECT_EQ(damaged().size(), 6);
}

TEST_F(FunTest, aFullDiskLosesNothing)
{
    start()->capture();
    const QByteArray before = contentOf(m_path);
    auto fun = start();
    onFullDisk([&] {
        for (int i = 0; i < 50; ++i)
            fun->capture();
        fun->flush();
    });
    EXPECT_EQ(fun->stats().total, 51);
    EXPECT_EQ(contentOf(m_path), before);
    fun->save();
    fun->flush();
    EXPECT_EQ(stored(), fun->stats());

    put(m_path, "oops");
    fun = start();
    onFullDisk([&] {
        fun->capture();
        fun->flush();
    });
    fun->capture();
    fun->flush();
    EXPECT_EQ(stored().total, 2);
    ASSERT_EQ(damaged().size(), 1);
    EXPECT_EQ(contentOf(damaged().at(0)), "oops");
}

TEST_F(FunTest, theClockFollowsTheTimeZoneWhereverItGoes)
{
    const auto now = FunSurroundings::ofUser().now;
    const QByteArray before = qgetenv("TZ");
    qputenv("TZ", "Pacific/Pago_Pago");
    const QDateTime west = now();
    qputenv("TZ", "Pacific/Kiritimati"); // 25 hours later.
    const QDateTime east = now();
    before.isNull() ? qunsetenv("TZ") : qputenv("TZ", before);
    EXPECT_GT(east.date(), west.date());
}
