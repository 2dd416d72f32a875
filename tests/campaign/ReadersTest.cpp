// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "app/TextProcess.h"
#include "base/Control.h"
#include "base/Prefs.h"
#include "capture/Files.h"
#include "capture/ShotFile.h"
#include "editor/keeping/EditFolder.h"
#include "fun/FunStats.h"
#include "history/HistoryCatalogue.h"
#include "history/HistoryIndex.h"
#include "history/TextFiles.h"
#include "platform/freedesktop/AppearanceSources.h"
#include "platform/freedesktop/Autostart.h"
#include "platform/freedesktop/DesktopEntries.h"
#include "platform/freedesktop/SoundFile.h"
#include "platform/x11/DisplayScale.h"
#include "shortcuts/KeyCombo.h"
#include "skins/SynthSounds.h"
#include "tests/Soak.h"
#include "tests/TestFiles.h"
#include "tests/campaign/Mutator.h"
#include "tests/campaign/Outcome.h"
#include "tests/editor/keeping/SampleEdits.h"
#include "update/UpdateRules.h"

#include <QBuffer>
#include <QElapsedTimer>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <csignal>
#include <unistd.h>

using namespace Qt::StringLiterals;

/// Of the sanitizers; absent without them.
extern "C" void __sanitizer_set_death_callback(void (*)()) __attribute__((weak));

namespace {

const QString id = u"01234567-89AB-CDEF-0123-456789ABCDEF"_s;

/// Where the user's files lie; in memory where that can be.
QString fastFolder()
{
    const QString memory = u"/dev/shm"_s;
    return QFileInfo(memory).isWritable() ? memory : QDir::tempPath();
}

/// Where files that are read lie.
struct Place {
    QString path(const QString& name) const { return root.filePath(name); }
    QString with(const QString& name, const QByteArray& content) const
    {
        put(path(name), content);
        return path(name);
    }

    const QTemporaryDir root {fastFolder() + u"/pixmallow-readers-XXXXXX"_s};
};

/// Something that reads bytes which others made.
struct Reader {
    const char* what;
    QList<QByteArray> (*samples)(); ///< Content that is sound.
    void (*read)(const Place& place, const QByteArray& bytes);
};

void PrintTo(const Reader& reader, std::ostream* stream)
{
    *stream << reader.what;
}

QByteArray encoded(const QImage& image, const char* format)
{
    QBuffer buffer;
    EXPECT_TRUE(image.save(&buffer, format));
    return buffer.data();
}

QList<QByteArray> samplePictures()
{
    const QImage opaque = SampleEdits::picture(1, {60, 40});
    const QImage clear = SampleEdits::picture(2, {50, 30}, QImage::Format_ARGB32);
    return {encoded(opaque, "png"), encoded(clear, "png"), encoded(opaque, "jpg"),
        encoded(opaque, "bmp"), encoded(opaque.convertToFormat(QImage::Format_Indexed8), "png"),
        encoded(opaque, "ppm"), *Files::encode(opaque, ImageType::Png, 2)};
}

QByteArray samplePreferences()
{
    QJsonObject object {{u"not ours"_s, 1}};
    for (const AnyPrefKey* key : Prefs::keys.all())
        object.insert(QLatin1String(key->name), key->toJson(key->defaultValue()));
    return QJsonDocument(object).toJson();
}

QByteArray sampleStatistics()
{
    FunStats stats;
    stats.total = 1234;
    stats.petName = u"Zoë"_s;
    return stats.toJson();
}

QList<QByteArray> sampleRecords()
{
    QList<QByteArray> records;
    for (unsigned seed = 0; seed < 9; ++seed) {
        EditRecord record;
        record.edit = SampleEdits::edit(seed);
        records.append(record.encoded());
    }
    return records;
}

QByteArray sampleSound()
{
    const auto sound = [] {
        const QTemporaryDir root;
        Prefs prefs(Folders {.configuration = root.path()}, Prefs::Watch::Nothing);
        struct : SoundOutput {
            void play(const QUrl&, double) override { }
            Result<void> check(const QUrl&) const override { return {}; }
        } silence;
        const SynthSounds sounds(Folders {.data = root.path()}, prefs, silence);
        return contentOf(sounds.url(SynthSounds::names().first())->toLocalFile());
    }();
    return sound.left(4000);
}

void readSound(const QString& path)
{
    const auto sound = SoundFile::open(QUrl::fromLocalFile(path));
    if (!sound)
        return;
    std::vector<float> samples(std::size_t((*sound)->channels()) * 64);
    for (int i = 0; i < 200 && (*sound)->read(samples) > 0; ++i) { }
}

const Reader readers[] = {
    {"preferences", [] { return QList {samplePreferences()}; },
        [](const Place& place, const QByteArray& bytes) {
            QDir(place.path(u"config"_s)).removeRecursively();
            place.with(u"config/preferences.json"_s, bytes);
            Prefs prefs(Folders {.configuration = place.path(u"config"_s)}, Prefs::Watch::Nothing);
            prefs.registerDefaults();
            for (const AnyPrefKey* key : Prefs::keys.all())
                std::ignore = prefs.value(*key);
            prefs.set(Prefs::keys.historyMax, 3);
            EXPECT_TRUE(prefs.flush());
        }},
    {"shortcuts",
        [] {
            return QList<QByteArray> {"18:4608:1", "23:4864:↩", "4294967295:0:K:L"};
        },
        [](const Place&, const QByteArray& bytes) {
            if (const auto combo = KeyCombo::fromText(QString::fromUtf8(bytes))) {
                EXPECT_EQ(KeyCombo::fromText(combo->text()), combo);
            }
        }},
    {"statistics", [] { return QList {sampleStatistics()}; },
        [](const Place&, const QByteArray& bytes) {
            if (const auto stats = FunStats::fromJson(bytes)) {
                EXPECT_TRUE(FunStats::fromJson(stats->toJson()));
            }
        }},
    {"the history's index",
        [] {
            return QList {HistoryIndex::toJson(
                {{id, 1.5, u"/a.png"_s, 6, 4, 1, u"Editor"_s, false, {{u"note"_s, "[{\"x\":1}]"}}},
                    {id, 2, u"/b.png"_s, 6, 4, 2, u"Zoë"_s, true}})};
        },
        [](const Place&, const QByteArray& bytes) {
            if (const auto items = HistoryIndex::parse(bytes)) {
                EXPECT_EQ(HistoryIndex::parse(HistoryIndex::toJson(*items)), items);
            }
        }},
    {"texts of captures",
        [] {
            return QList<QByteArray> {"Größe — naïve ﬁle\n٣ 🙂", "plain"};
        },
        [](const Place& place, const QByteArray& bytes) {
            place.with(u"History/Texts/"_s + id + u".txt"_s, bytes);
            const QString text = TextFiles(place.root.path()).read(id);
            EXPECT_FALSE(text.isNull());
            std::ignore = searchable(text);
        }},
    {"kept edits", sampleRecords,
        [](const Place&, const QByteArray& bytes) {
            if (const auto record = EditRecord::decoded(bytes)) {
                EXPECT_TRUE(EditRecord::decoded(record->encoded()));
            }
        }},
    {"pictures below kept edits", [] { return samplePictures(); },
        [](const Place& place, const QByteArray& bytes) {
            EditFolder folder(place.path(u"Layers"_s));
            if (!QFile::exists(place.path(u"Layers"_s))) {
                QDir().mkpath(place.path(u"Layers"_s));
                ASSERT_TRUE(folder.write({id, u"a"_s}, SampleEdits::edit(1)));
            }
            for (const QString& name : QDir(place.path(u"Layers"_s)).entryList({u"*.png"_s}))
                put(place.path(u"Layers/"_s + name), bytes);
            std::ignore = folder.read({id, u"a"_s});
        }},
    {"pictures that are opened", [] { return samplePictures(); },
        [](const Place& place, const QByteArray& bytes) {
            const auto shot = readShot(place.with(u"picture"_s, bytes));
            EXPECT_TRUE(!shot || !shot->image.isNull());
        }},
    {"the feed of updates",
        [] {
            return QList<QByteArray> {R"({"linux":{"version":"1.4.2","date":"2026-03-07",
                "url":"https://pixmallow.example/x.deb","sha256":"00","notes":["a","b"]}})"};
        },
        [](const Place&, const QByteArray& bytes) {
            const auto info = UpdateRules::readFeed(bytes, u"linux"_s);
            if (info && *info) {
                EXPECT_TRUE(UpdateRules::isSafe((*info)->url));
                const QString name = UpdateRules::fileName((*info)->version, u".deb"_s);
                EXPECT_FALSE(name.contains(u'/') || name.contains(QChar(QChar::Null)));
            }
        }},
    {"requests over the socket",
        [] {
            QList<QByteArray> lines;
            for (const Control::Request& request : {Control::Request(Control::Quit {}),
                     Control::Request(Control::Capture {CaptureKind::Screen, true}),
                     Control::Request(Control::Edit {{u"/a.png"_s, u"/b.png"_s}}),
                     Control::Request(Control::Show {})})
                lines.append(Control::toLine(request).chopped(1));
            return lines;
        },
        [](const Place&, const QByteArray& bytes) {
            if (const auto request = Control::requestFrom(bytes)) {
                EXPECT_TRUE(Control::requestFrom(Control::toLine(*request).chopped(1)));
            }
        }},
    {"answers over the socket",
        [] {
            const CaptureReport report {CaptureReport::Outcome::Done, {}, u"/a.png"_s, {6, 4}, 2,
                u"Editor"_s, id, u"text"_s};
            return QList {Control::toLine(Control::Answer(report)).chopped(1)};
        },
        [](const Place&, const QByteArray& bytes) { std::ignore = Control::answerFrom(bytes); }},
    {"desktop entries",
        [] {
            return QList<QByteArray> {"[Desktop Entry]\nType=Application\nName=Editor\n"
                                      "Name[de]=Bearbeiter\nExec=editor %U\nStartupWMClass=Ed\n",
                "# none\n[Other]\nName=\n"};
        },
        [](const Place& place, const QByteArray& bytes) {
            place.with(u"applications/ed.desktop"_s, bytes);
            DesktopEntries entries({place.path(u"applications"_s)});
            std::ignore = entries.find(u"Ed"_s, u"ed"_s);
        }},
    {"the entry for starting at login",
        [] {
            return QList<QByteArray> {
                "[Desktop Entry]\nType=Application\nHidden=true\nX-GNOME-Autostart-enabled=false"};
        },
        [](const Place& place, const QByteArray& bytes) {
            for (const QString& name : QDir(place.path(u"autostart"_s)).entryList(QDir::Files))
                put(place.path(u"autostart/"_s + name), bytes);
            if (!QFile::exists(place.path(u"autostart"_s))) {
                EXPECT_TRUE(Autostart::set(place.path(u"autostart"_s), u"/opt/x"_s, true));
            }
            std::ignore = Autostart::isOn(place.path(u"autostart"_s));
        }},
    {"resources of the X server",
        [] {
            return QList<QByteArray> {"Xft.dpi:\t192\nXft.hinting:\t1\n", "*x: 1\nXft.dpi: 9"};
        },
        [](const Place&, const QByteArray& bytes) {
            const ScaleSettings settings {
                QString::fromLatin1(bytes.left(3)), QString::fromLatin1(bytes.right(9)), bytes};
            for (const qsizetype screen : {0, 1, 7})
                EXPECT_GE(settings.scaleOf(u"L"_s, screen), 0.1);
        }},
    {"the look of desktops",
        [] {
            return QList<QByteArray> {"[Settings]\ngtk-theme-name=Adwaita-dark\n"
                                      "gtk-application-prefer-dark-theme=1\n",
                "[General]\nAccentColor=61,174,233\n[Colors:Window]\nBackgroundNormal=35,38,41\n"
                "[KDE]\nAnimationDurationFactor=0\n",
                "Adwaita:dark"};
        },
        [](const Place&, const QByteArray& bytes) {
            const QString text = QString::fromUtf8(bytes);
            std::ignore = AppearanceSources::fromGtkTheme(text);
            std::ignore = AppearanceSources::fromGtkSettings(text).complete();
            std::ignore = AppearanceSources::fromKdeGlobals(text).complete();
        }},
    {"sounds", [] { return QList {sampleSound()}; },
        [](const Place& place, const QByteArray& bytes) {
            readSound(place.with(u"sound.wav"_s, bytes));
        }},
    {"what the process that reads texts says",
        [] {
            return QList<QByteArray> {R"({"text":"Größe","lines":1})", R"({"reason":"none"})"};
        },
        [](const Place& place, const QByteArray& bytes) {
            const QString path = place.with(u"says"_s, bytes);
            static const QTemporaryDir programs; // Nothing may be started from that memory.
            const QString program = programs.filePath(u"cat"_s);
            if (!QFile::exists(program)) { // It is given the path last.
                put(program, "#!/bin/sh\nexec cat \"$4\"\n");
                QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner);
            }
            TextProcess process(program);
            std::ignore = process.read(path).wait();
        }},
};

const char* reading = "";
unsigned seed = 0;

/// For when a reader ends the program.
void tellSeed()
{
    const QByteArray text
        = QByteArray("Read: ") + reading + ", seed " + QByteArray::number(seed) + '\n';
    std::ignore = write(STDERR_FILENO, text.constData(), std::size_t(text.size()));
}

void tellSeedAndEnd(int signal)
{
    tellSeed();
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

class ReadersTest : public testing::TestWithParam<Reader> { };

std::string nameOf(const testing::TestParamInfo<Reader>& info)
{
    return QString::fromLatin1(info.param.what).remove(u' ').remove(u'\'').toStdString();
}

} // namespace

TEST_P(ReadersTest, standWhateverTheyAreGiven)
{
    const Reader& reader = GetParam();
    Outcome outcome(u"Reading damaged content: "_s + QLatin1String(reader.what));
    if (__sanitizer_set_death_callback)
        __sanitizer_set_death_callback(tellSeed);
    else
        for (const int signal : {SIGSEGV, SIGABRT, SIGFPE, SIGBUS, SIGILL})
            std::signal(signal, tellSeedAndEnd);
    reading = reader.what;
    const Place place;
    const QList<QByteArray> samples = reader.samples();
    for (const QByteArray& sample : samples)
        reader.read(place, sample);
    const QElapsedTimer time = [] {
        QElapsedTimer started;
        started.start();
        return started;
    }();
    for (seed = 1; time.elapsed() < soaked(60) && !HasFailure(); ++seed, ++outcome.done) {
        const QByteArray bytes = Mutator(seed).mutated(samples);
        SCOPED_TRACE(testing::Message() << "seed " << seed << ": " << bytes.toBase64().constData());
        reader.read(place, bytes);
    }
    EXPECT_GT(outcome.done, 0);
}

INSTANTIATE_TEST_SUITE_P(All, ReadersTest, testing::ValuesIn(readers), nameOf);
