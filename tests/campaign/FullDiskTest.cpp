// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/Prefs.h"
#include "capture/Files.h"
#include "doctor/FolderProbe.h"
#include "editor/keeping/EditFolder.h"
#include "fun/StatsFile.h"
#include "history/HistoryFolder.h"
#include "history/TextFiles.h"
#include "history/ThumbnailFiles.h"
#include "platform/fake/FakePlatform.h"
#include "platform/freedesktop/Autostart.h"
#include "skins/SynthSounds.h"
#include "tests/TestFiles.h"
#include "tests/campaign/Outcome.h"
#include "tests/campaign/SmallDisk.h"
#include "tests/editor/keeping/SampleEdits.h"
#include "tests/update/TestServer.h"
#include "update/UpdateDownload.h"

#include <QCryptographicHash>
#include <QDirIterator>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

namespace {

const QString id = u"01234567-89AB-CDEF-0123-456789ABCDEF"_s;
const QDateTime noon(QDate(2026, 3, 7), QTime(12, 0));

/// A user whose files all lie on one small disk.
struct Place {
    explicit Place(const SmallDisk& disk)
        : folders {.configuration = disk.path(u"config"_s),
            .data = disk.path(u"data"_s),
            .cache = disk.path(u"cache"_s),
            .pictures = disk.path(u"pictures"_s),
            .downloads = disk.path(u"downloads"_s),
            .runtime = disk.path(u"runtime"_s)}
    {
        for (const QString& folder : {folders.configuration, folders.data, folders.cache,
                 folders.pictures, folders.downloads, folders.runtime})
            QDir().mkpath(folder);
        prefs.registerDefaults();
        server.pages["/program"] = {program};
    }

    QImage picture() const { return SampleEdits::picture(turn, {200, 120}); }

    const Folders folders;
    Prefs prefs {folders, Prefs::Watch::Nothing};
    StatsFile stats {folders};
    FakeSoundOutput sound;
    const QByteArray program {20'000, 'p'};
    TestServer server;
    unsigned turn = 0; ///< Differs whenever everything is written again.
};

/// Something that the program writes. What it says where that fails, empty where nothing is said;
/// without a value where it succeeds.
struct WritePath {
    const char* what;
    const char* source; ///< Below src/.
    std::optional<QString> (*write)(Place& place);
    enum { Says, IsSilent } failing = Says;
};

template <typename T>
std::optional<QString> complaintOf(const Result<T>& result)
{
    return result ? std::nullopt : std::optional(result.error().message);
}

std::optional<QString> silentUnless(bool succeeded)
{
    return succeeded ? std::nullopt : std::optional(QString());
}

std::optional<QString> savedCapture(Place& place, ImageType type, const QString& extension)
{
    const auto bytes = Files::encode(place.picture(), type, 1);
    return complaintOf(
        Files::save(*bytes, place.folders.pictures, extension, u"Screenshot"_s, noon));
}

const WritePath writePaths[] = {
    {"a capture as PNG", "capture/Files.cpp",
        [](Place& place) { return savedCapture(place, ImageType::Png, u"png"_s); }},
    {"a capture as JPEG", "capture/Files.cpp",
        [](Place& place) { return savedCapture(place, ImageType::Jpeg, u"jpg"_s); }},
    {"an export over a picture", "capture/Files.cpp",
        [](Place& place) {
            return complaintOf(
                Files::write(place.picture(), place.folders.pictures + u"/export.png"_s, 1));
        }},
    {"a picture to drag or share", "capture/Files.cpp",
        [](Place& place) {
            return silentUnless(
                Files::tempPNG(place.picture(), 1, place.folders, noon).has_value());
        },
        WritePath::IsSilent},
    {"the history's index", "history/HistoryFolder.cpp",
        [](Place& place) {
            return complaintOf(
                HistoryFolder(place.folders)
                    .writeIndex(QByteArray(5000, ' ') + "[]" + QByteArray(int(place.turn), '\n')));
        }},
    {"the history's copy of a capture", "history/HistoryFolder.cpp",
        [](Place& place) {
            return complaintOf(
                HistoryFolder(place.folders)
                    .writeCopy(id, *Files::encode(place.picture(), ImageType::Png, 1)));
        }},
    {"the text of a capture", "history/TextFiles.cpp",
        [](Place& place) {
            const TextFiles files(place.folders.data);
            const QString text = QString::number(place.turn).repeated(5000);
            files.write(id, text);
            return silentUnless(files.read(id) == text);
        },
        WritePath::IsSilent},
    {"an edit and its picture", "editor/keeping/EditFolder.cpp",
        [](Place& place) {
            return complaintOf(EditFolder(place.folders.data + u"/Journals"_s)
                                   .write({id, u"a"_s}, SampleEdits::edit(place.turn + 1)));
        }},
    {"the preferences", "base/Prefs.cpp",
        [](Place& place) {
            place.prefs.set(Prefs::keys.sound, QString::number(place.turn).repeated(5000));
            return complaintOf(place.prefs.flush());
        }},
    {"the statistics", "fun/StatsFile.cpp",
        [](Place& place) {
            FunStats stats;
            stats.total = place.turn;
            stats.petName = QString(5000, u'x');
            place.stats.save(stats);
            place.stats.flush();
            const auto stored = StatsFile(place.folders).load();
            return silentUnless(stored && stored->total == place.turn);
        },
        WritePath::IsSilent},
    {"a synthesised sound", "skins/SynthSounds.cpp",
        [](Place& place) {
            const SynthSounds sounds(place.folders, place.prefs, place.sound);
            const auto file = sounds.url(SynthSounds::names().value(int(place.turn)));
            return silentUnless(QFile::exists(file->toLocalFile()));
        },
        WritePath::IsSilent},
    {"the entry for starting at login", "platform/freedesktop/Autostart.cpp",
        [](Place& place) {
            return complaintOf(Autostart::set(
                place.folders.configuration, u"/opt/%1/pixmallow"_s.arg(place.turn), true));
        }},
    {"a new version", "update/UpdateDownload.cpp",
        [](Place& place) {
            UpdateInfo info;
            info.url = place.server.address(u"/program"_s);
            info.sha256 = QString::fromLatin1(
                QCryptographicHash::hash(place.program, QCryptographicHash::Sha256).toHex());
            return complaintOf(
                UpdateDownload(info, place.folders.downloads + u"/new.deb"_s).run().wait());
        }},
    {"what the doctor tries", "doctor/FolderProbe.cpp",
        [](Place& place) {
            const QString problem = FolderProbe::problemOf(place.folders.pictures);
            return problem.isEmpty() ? std::nullopt : std::optional(problem);
        }},
};

/// What writes files and is tested elsewhere, or by hand of the user only.
const std::map<QString, const char*> otherWriters {
    {u"base/AtomicFile.cpp"_s, "what the others write through"},
    {u"history/ThumbnailFiles.cpp"_s, "what can be made again is removed first; tested beside"},
    {u"cli/ShotCommand.cpp"_s, "needs a screen: FullDiskDesktopTest"},
    {u"base/FileLock.cpp"_s, "an empty file to lock"},
    {u"platform/freedesktop/faces/unpack-face-detector.cpp"_s, "runs when building"},
};

class FullDiskTest : public testing::Test {
protected:
    void SetUp() override
    {
        if (!disk.isMounted())
            GTEST_SKIP() << "a full disk needs a small file system, and mounting one needs root";
    }

    const QTemporaryDir root;
    SmallDisk disk {root.filePath(u"disk"_s)};
};

} // namespace

TEST_F(FullDiskTest, keepsWhatIsThereSaysSoAndGoesOnOnceThereIsSpace)
{
    Outcome outcome(u"Ways of writing on a full disk"_s);
    Place place(disk);
    for (const WritePath& path : writePaths) {
        SCOPED_TRACE(path.what);
        ASSERT_EQ(path.write(place), std::nullopt) << "while there is space";
        ++outcome.done;
    }
    ++place.turn;
    disk.fill();
    const auto before = disk.content();
    for (const WritePath& path : writePaths) {
        SCOPED_TRACE(path.what);
        const auto complaint = path.write(place);
        ASSERT_TRUE(complaint) << "written where there is no space";
        EXPECT_EQ(complaint->isEmpty(), path.failing == WritePath::IsSilent);
        EXPECT_TRUE(complaint->isEmpty() || complaint->endsWith(u'.')) << qPrintable(*complaint);
        EXPECT_EQ(disk.content(), before);
    }
    disk.free();
    for (const WritePath& path : writePaths)
        EXPECT_EQ(path.write(place), std::nullopt) << path.what << ", once there is space";
}

TEST_F(FullDiskTest, leavesNoThumbnailCutOff)
{
    const ThumbnailFiles files(disk.path(u"thumbnails"_s));
    const QString other = newHistoryId();
    const QImage image = SampleEdits::picture(1, {300, 208});
    files.write(id, image, 1);
    ASSERT_FALSE(files.read(id, 1).isNull());
    disk.fill();
    files.write(other, SampleEdits::picture(2, {300, 208}), 2);
    EXPECT_TRUE(files.read(other, 2).isNull());
    EXPECT_EQ(files.read(id, 1).size(), image.size());
    disk.free();
    files.write(other, image, 3);
    EXPECT_EQ(files.read(other, 3).size(), image.size());
}

TEST(WritePathsTest, areAllTriedOnAFullDisk)
{
    static const QRegularExpression writes(
        uR"(\bAtomicFile \w|\bwriteFile\(|QTemporaryFile|QSaveFile|O_CREAT|ofstream|mkstemp)"_s);
    QSet<QString> known;
    for (const WritePath& path : writePaths)
        known.insert(QLatin1String(path.source));
    for (const auto& other : otherWriters)
        known.insert(other.first);
    QSet<QString> found;
    const QString root = QStringLiteral(PIXMALLOW_SOURCES "/src/");
    for (QDirIterator it(root, {u"*.cpp"_s}, QDir::Files, QDirIterator::Subdirectories);
         it.hasNext();) {
        const QString path = it.next();
        if (QString::fromUtf8(contentOf(path)).contains(writes))
            found.insert(path.mid(root.size()));
    }
    // The download's file is a member, declared in a header.
    found.insert(u"update/UpdateDownload.cpp"_s);
    EXPECT_EQ(found, known) << "a new way of writing belongs into the table above";
}
