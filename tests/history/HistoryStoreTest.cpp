// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/history/HistoryPlace.h"

#include "history/HistoryIndex.h"

#include <gmock/gmock.h>

#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const QImage image = sampleImage(1);
const QImage edited = sampleImage(2, {10, 8});
const QByteArray png = pngOf(image); // Some other bytes than what the store would write.

mode_t modeOf(const QString& path)
{
    struct stat status { };
    stat(QFile::encodeName(path).constData(), &status);
    return status.st_mode & 07777;
}

QStringList idsOf(const HistoryStore& store)
{
    QStringList ids;
    for (const auto& item : store.items())
        ids.append(item.id);
    return ids;
}

class HistoryStoreTest : public testing::Test, protected HistoryPlace {
protected:
    QString addCopied() { return store().add(image, 2, {}, u"Editor"_s, png); }
    QString addSaved(const QString& name)
    {
        return store().add(image, 2, savedFile(name), {}, png);
    }
    void restart()
    {
        stop();
        store();
    }
    /// What the store would have after a start.
    QList<HistoryItem> stored() const
    {
        return HistoryIndex::parse(contentOf(indexPath())).value_or(QList<HistoryItem>());
    }
    QByteArray entryText(const QString& id, const QString& path, const QByteArray& cached) const
    {
        return "{\"id\":\"" + id.toUtf8() + R"(","date":1,"path":")" + path.toUtf8()
            + R"(","width":6,"height":4,"scale":1,"app":"","cached":)" + cached + '}';
    }
    QStringList setAside() const
    {
        return QDir(folder()).entryList({u"index.json.damaged-*"_s}, QDir::Files, QDir::Name);
    }
};

} // namespace

TEST_F(HistoryStoreTest, hasTheIndexOnDiskWhenAddReturns)
{
    const QString copied = addCopied();
    const QString file = savedFile(u"ä.png"_s);
    const QString saved = store().add(edited, 1.5, file, u"Terminal"_s);
    EXPECT_TRUE(isHistoryId(copied) && isHistoryId(saved)) << qPrintable(copied);
    EXPECT_EQ(contentOf(indexPath()).toStdString(),
        "[{\"id\":\"" + saved.toStdString() + "\",\"date\":700000000.5,\"path\":\""
            + file.toStdString()
            + "\",\"width\":10,\"height\":8,\"scale\":1.5,\"app\":\"Terminal\",\"cached\":false},{"
              "\"id\":\""
            + copied.toStdString() + "\",\"date\":700000000.5,\"path\":\""
            + copyPath(copied).toStdString()
            + "\",\"width\":6,\"height\":4,\"scale\":2,\"app\":\"Editor\",\"cached\":true}]");
    EXPECT_EQ(contentOf(copyPath(copied)), png) << "not encoded again";
    for (const auto& [path, mode] : {std::pair(folder(), 0700), std::pair(indexPath(), 0600),
             std::pair(copyPath(copied), 0600)})
        EXPECT_EQ(modeOf(path), mode_t(mode)) << qPrintable(path);

    const auto before = store().items();
    restart();
    EXPECT_EQ(store().items(), before);
    const QString encodedHere = store().add(edited, 1, {}, {});
    EXPECT_EQ(QImage(copyPath(encodedHere)).size(), edited.size());
}

TEST_F(HistoryStoreTest, keepsTheNewestAndNeverFewerThanTen)
{
    for (const auto& [preferred, kept] : {std::pair(25, 25), std::pair(10, 10), std::pair(9, 10),
             std::pair(0, 10), std::pair(-5, 10)}) {
        store().clear();
        prefs().set(Prefs::keys.historyMax, preferred);
        QStringList ids, gone, files;
        const auto follow = QObject::connect(
            &store(), &HistoryStore::removed, &store(), [&](auto removed) { gone += removed; });
        for (int i = 0; i < kept + 2; ++i) {
            EXPECT_EQ(gone.size(), std::max(0, i - kept));
            files << savedFile(QString::number(i));
            ids.prepend(i % 2 == 0 ? addCopied() : store().add(image, 1, files.last(), {}));
        }
        QObject::disconnect(follow);
        EXPECT_EQ(gone, QStringList({ids.takeLast(), ids.takeLast()}));
        EXPECT_EQ(idsOf(store()), ids);
        EXPECT_EQ(names(folder()).size(), kept / 2 + 1 + kept % 2) << "the index and the copies";
        for (const QString& file : files)
            EXPECT_TRUE(QFile::exists(file));
        restart();
        EXPECT_EQ(idsOf(store()), ids);
    }
}

TEST_F(HistoryStoreTest, addsNothingWhileHistoryIsOff)
{
    prefs().set(Prefs::keys.historyEnabled, false);
    EXPECT_EQ(addCopied(), QString());
    EXPECT_EQ(addSaved(u"a.png"_s), QString());
    EXPECT_THAT(names(folder()), IsEmpty());
    prefs().set(Prefs::keys.historyEnabled, true);
    EXPECT_EQ(store().add({}, 1, {}, {}), QString()) << "no image";
    EXPECT_THAT(store().items(), IsEmpty());
}

TEST_F(HistoryStoreTest, pointsAnEditedEntryAtItsNewFile)
{
    enum Saved { Nowhere, InFile, InCopy, InCopyByLink };
    struct Case {
        bool wasCopied;
        Saved saved;
        bool isCopied;
    };
    const QString linked = root() + u"/link"_s;
    ASSERT_TRUE(QFile::link(folder(), linked));
    for (const auto& [wasCopied, saved, isCopied] : {Case {true, Nowhere, true},
             Case {true, InFile, false}, Case {true, InCopy, true}, Case {true, InCopyByLink, true},
             Case {false, Nowhere, true}, Case {false, InFile, false}}) {
        SCOPED_TRACE(testing::Message() << wasCopied << saved);
        const QString userFile = savedFile(u"first.png"_s);
        const QString id = wasCopied ? addCopied() : store().add(image, 2, userFile, u"Editor"_s);
        const QString newer = addCopied();
        const HistoryItem before = store().items().at(1);
        const QString target = saved == InFile ? savedFile(u"second.png"_s)
            : saved == InCopy                  ? copyPath(id)
            : saved == InCopyByLink            ? linked + u'/' + id + u".png"_s
                                               : QString();
        if (saved == InCopy || saved == InCopyByLink)
            put(target, pngOf(edited));
        now = now.addDays(1);
        store().update(id, edited, 1, target, "edited");

        HistoryItem expected = before;
        expected.path = isCopied ? copyPath(id) : target;
        expected.cached = isCopied;
        std::tie(expected.width, expected.height, expected.scale) = std::tuple(10, 8, 1.0);
        EXPECT_EQ(store().items().at(1), expected);
        EXPECT_EQ(stored(), store().items());
        EXPECT_EQ(QFile::exists(copyPath(id)), isCopied);
        if (isCopied) {
            EXPECT_EQ(
                contentOf(copyPath(id)), saved == Nowhere ? QByteArray("edited") : pngOf(edited));
        }
        EXPECT_EQ(contentOf(userFile), "the user's");
        store().remove(store().items().at(1));
        store().remove({newer});
        EXPECT_THAT(names(folder()), ElementsAre(u"index.json"_s));
    }
    store().update(u"unknown"_s, edited, 1, {});
    store().update({}, edited, 1, {});
    EXPECT_THAT(names(folder()), ElementsAre(u"index.json"_s));
}

TEST_F(HistoryStoreTest, removesPrivateCopiesButNeverTheUsersFiles)
{
    QStringList gone;
    int changes = 0;
    QObject::connect(
        &store(), &HistoryStore::removed, [&](const QStringList& ids) { gone += ids; });
    QObject::connect(&store(), &HistoryStore::changed, [&] { ++changes; });
    const QString first = addCopied(), second = addSaved(u"a.png"_s), third = addCopied(),
                  fourth = addSaved(u"b.png"_s);
    store().remove(store().items().at(1), HistoryStore::Persist::Later);
    EXPECT_EQ(stored().size(), 4);
    store().remove({second});
    EXPECT_EQ(stored().size(), 2);
    store().remove({second});
    EXPECT_THAT(gone, ElementsAre(third, second));
    EXPECT_THAT(names(folder()), ElementsAre(first + u".png"_s, u"index.json"_s));
    store().clear();
    EXPECT_THAT(gone, ElementsAre(third, second, fourth, first));
    EXPECT_EQ(changes, 7);
    EXPECT_EQ(contentOf(indexPath()), "[]");
    EXPECT_THAT(names(folder()), ElementsAre(u"index.json"_s));
    EXPECT_THAT(names(pictures()), ElementsAre(u"a.png"_s, u"b.png"_s));
}

TEST_F(HistoryStoreTest, leavesOutEntriesWithoutAFileAtStart)
{
    const QString copied = addCopied(), lostCopy = addCopied(), saved = addSaved(u"a.png"_s),
                  lost = addSaved(u"b.png"_s);
    stop();
    QFile::remove(copyPath(lostCopy));
    QFile::remove(pictures() + u"/b.png"_s);
    QStringList gone;
    QObject::connect(
        &store(), &HistoryStore::removed, [&](const QStringList& ids) { gone += ids; });
    EXPECT_THAT(idsOf(store()), ElementsAre(saved, copied));
    EXPECT_TRUE(comesTrue([&] { return gone == QStringList({lost, lostCopy}); }));
}

TEST_F(HistoryStoreTest, findsTheFilesOfManyEntriesAmongOthers)
{
    constexpr int many = 120; // Enough for their folder to be read at once.
    prefs().set(Prefs::keys.historyMax, 1000);
    for (const int others : {0, 400}) { // So many that it is not.
        store().clear();
        QDir(pictures()).removeRecursively();
        QStringList expected;
        for (int i = 0; i < many; ++i)
            expected.prepend(addSaved(u"%1 “ü”.png"_s.arg(i)));
        const QString kept = pictures() + u"/elsewhere.png"_s;
        put(kept, "the user's");
        stop();
        for (int i = 0; i < others; ++i)
            put(pictures() + u"/other %1"_s.arg(i), {});
        const auto path = [&](int i) { return pictures() + u"/%1 “ü”.png"_s.arg(i); };
        QFile::remove(path(7)); // Gone, moved and linked to, and a link that leads nowhere.
        QFile::remove(path(8));
        ASSERT_TRUE(QFile::link(kept, path(8)));
        QFile::remove(path(9));
        ASSERT_TRUE(QFile::link(root() + u"/nowhere"_s, path(9)));
        expected.removeAt(many - 1 - 7);
        expected.removeAt(many - 1 - 9);
        QFile folder(pictures());
        if (others > 0) // Whose names may not be known, though files in it may be used.
            folder.setPermissions(QFile::WriteOwner | QFile::ExeOwner);
        EXPECT_EQ(idsOf(store()), expected) << others << " other files";
        folder.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
}

TEST_F(HistoryStoreTest, takesOverTheFolderOfTheFormerName)
{
    const QString copied = addCopied(), saved = addSaved(u"a.png"_s);
    const auto items = store().items();
    stop();
    const QString data = folders().data, former = QFileInfo(data).path() + u"/Glimmerbox"_s;
    const auto asFormer = [&] {
        put(indexPath(), contentOf(indexPath()).replace("/data/Pixmallow/", "/data/Glimmerbox/"));
    };
    asFormer();
    ASSERT_TRUE(QDir().rename(data, former));
    put(former + u"/stats.json"_s, "{}");

    EXPECT_EQ(store().items(), items);
    EXPECT_EQ(stored(), items) << "the paths in the index, too";
    EXPECT_FALSE(QFile::exists(former));
    EXPECT_EQ(contentOf(data + u"/stats.json"_s), "{}");

    stop(); // Killed after the rename.
    asFormer();
    EXPECT_EQ(store().items(), items);

    stop(); // With both folders there, the former one is somebody else's.
    put(former + u"/History/index.json"_s, "[]");
    EXPECT_EQ(store().items(), items);
    EXPECT_TRUE(QFile::exists(former + u"/History/index.json"_s));

    stop(); // The home was renamed, or copied to another machine.
    put(indexPath(),
        contentOf(indexPath()).replace((root() + u"/data"_s).toUtf8(), "/home/former/data"));
    EXPECT_EQ(store().items(), items);
}

TEST_F(HistoryStoreTest, keepsMembersThatItDoesNotKnow)
{
    const QString file = savedFile(u"a.png"_s);
    QByteArray known = entryText(u"first"_s, file, "false");
    put(indexPath(), '[' + known.chopped(1) + R"(,"note":{"text":"ü","n":1.10}}])");
    const QString id = addCopied();
    store().update(u"first"_s, edited, 1, file);
    store().remove({id});
    known.replace("\"width\":6,\"height\":4", "\"width\":10,\"height\":8").chop(1);
    EXPECT_EQ(contentOf(indexPath()).toStdString(),
        ('[' + known + R"(,"note":{"text":"ü","n":1.10}}])").toStdString());
}

TEST_F(HistoryStoreTest, setsAnIndexAsideThatItCannotRead)
{
    const QString id = addCopied();
    stop();
    const QByteArray good = contentOf(indexPath());
    put(indexPath(), good.chopped(1));
    EXPECT_THAT(store().items(), IsEmpty());
    ASSERT_EQ(setAside().size(), 1);
    EXPECT_EQ(contentOf(folder() + u'/' + setAside().first()), good.chopped(1));
    const QString second = addCopied();
    restart();
    EXPECT_THAT(idsOf(store()), ElementsAre(second));
    EXPECT_TRUE(QFile::exists(copyPath(id))) << "the index set aside may be mended";

    stop();
    QFile::remove(indexPath());
    ASSERT_TRUE(QDir().mkdir(indexPath())); // Neither a file to read nor to replace.
    EXPECT_THAT(store().items(), IsEmpty());
    addCopied();
    EXPECT_EQ(stored().size(), 1);
}

TEST_F(HistoryStoreTest, neverTouchesWhatAnIndexOnlyClaimsToBeACopy)
{
    const QString file = savedFile(u"a.png"_s), up = u"../../../pictures/a"_s, id = newHistoryId();
    ASSERT_TRUE(QDir().mkpath(folder()));
    for (const auto& [claimed, path] :
        {std::pair(id, file), std::pair(up, folder() + u'/' + up + u".png"_s)}) {
        for (int way = 0; way < 4; ++way) {
            put(indexPath(), '[' + entryText(claimed, path, "true") + ']');
            restart();
            ASSERT_EQ(store().items().size(), 1);
            if (way == 0)
                store().clear();
            else if (way == 1)
                store().remove({claimed});
            else
                store().update(claimed, edited, 1, way == 2 ? savedFile(u"b.png"_s) : QString());
            EXPECT_EQ(contentOf(file), "the user's") << way;
        }
    }
}

TEST_F(HistoryStoreTest, removesTheFewFilesOfWritesThatWereCutOff)
{
    const QString id = addCopied();
    const auto leave = [&](int count) {
        for (int i = 0; i < count; ++i)
            put(copyPath(newHistoryId()), "nobody's");
    };
    put(folder() + u"/notes.png"_s, "not ours");
    leave(1);
    put(folder() + u"/.pixmallow-2k4.part"_s, "half");
    restart();
    EXPECT_THAT(names(folder()), ElementsAre(id + u".png"_s, u"index.json"_s, u"notes.png"_s));
    leave(20); // As if an old index had been put back.
    restart();
    EXPECT_EQ(names(folder()).size(), 23);
}

TEST_F(HistoryStoreTest, goesOnInMemoryWhereNothingCanBeWritten)
{
    const QString kept = addCopied();
    stop();
    if (mount("none", qPrintable(folder()), "tmpfs", 0, "size=64k") != 0)
        GTEST_SKIP() << "a full disk needs a small file system, and mounting one needs root";
    const auto unmount = qScopeGuard([&] {
        stop();
        umount(qPrintable(folder()));
    });
    const QString first = addCopied();
    const QByteArray index = contentOf(indexPath());
    put(folder() + u"/filler"_s, QByteArray(100'000, 'x'));
    EXPECT_EQ(addCopied(), QString()) << "a copy that cannot be kept";
    EXPECT_FALSE(addSaved(u"a.png"_s).isEmpty());
    store().update(first, edited, 1, savedFile(u"b.png"_s));
    EXPECT_EQ(contentOf(indexPath()), index);
    EXPECT_TRUE(QFile::exists(copyPath(first))) << "the index names it still";
    EXPECT_THAT(names(folder()), ElementsAre(first + u".png"_s, u"filler"_s, u"index.json"_s));
    QFile::remove(folder() + u"/filler"_s);
    const auto items = store().items();
    restart(); // What was in memory only is written at the end.
    EXPECT_EQ(store().items(), items);
    EXPECT_EQ(items.size(), 2);

    put(indexPath(), "damaged");
    stop();
    const auto remount = [&](unsigned long flags) {
        return mount("none", qPrintable(folder()), "tmpfs", MS_REMOUNT | flags, nullptr);
    };
    ASSERT_EQ(remount(MS_RDONLY), 0);
    EXPECT_THAT(store().items(), IsEmpty());
    EXPECT_FALSE(addSaved(u"c.png"_s).isEmpty());
    EXPECT_EQ(addCopied(), QString());
    store().clear();
    EXPECT_EQ(contentOf(indexPath()), "damaged");
    ASSERT_EQ(remount(0), 0);
    EXPECT_FALSE(addCopied().isEmpty());
    EXPECT_EQ(stored().size(), 1);
    ASSERT_EQ(setAside().size(), 1);
    EXPECT_EQ(contentOf(folder() + u'/' + setAside().first()), "damaged");
}
