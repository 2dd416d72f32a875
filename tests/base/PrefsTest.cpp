// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/Prefs.h"

#include "tests/Soak.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <functional>
#include <random>

using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

constexpr const PrefKeys& keys = Prefs::keys;

void write(const QString& path, const QByteArray& text)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate)) << qPrintable(path);
    file.write(text);
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Whether something comes true while events are handled, within five seconds.
bool eventually(const std::function<bool()>& isTrue)
{
    const QDeadlineTimer deadline(5000);
    while (!isTrue() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    return isTrue();
}

class PrefsTest : public testing::Test {
protected:
    QJsonObject stored() const { return QJsonDocument::fromJson(contentOf(m_path)).object(); }

    QCoreApplication m_application {m_argumentCount, m_arguments};
    const QTemporaryDir m_root;
    const Folders m_folders {.configuration = m_root.filePath(u"Pixmallow"_s),
        .pictures = m_root.filePath(u"Pictures"_s)};
    const QString m_path = m_folders.configuration + u"/preferences.json"_s;

private:
    static inline char m_name[] = "PrefsTest";
    static inline char* m_arguments[] = {m_name, nullptr};
    static inline int m_argumentCount = 1;
};

} // namespace

TEST_F(PrefsTest, withoutARegisteredDefaultOnlyThoseForAbsenceCount)
{
    Prefs prefs(m_folders);
    EXPECT_FALSE(prefs.get(keys.autoSave));
    EXPECT_EQ(prefs.get(keys.delaySeconds), 0);
    EXPECT_TRUE(prefs.get(keys.achievementToasts));
    EXPECT_EQ(prefs.get(keys.captureAnimation), u"flash"_s);
    EXPECT_TRUE(prefs.get(keys.autoUpdate));
    EXPECT_LT(prefs.get(keys.lastUpdateCheck), QDateTime(QDate(1000, 1, 1), QTime(0, 0)));
    EXPECT_EQ(prefs.imageFormat(), u"png"_s);
    EXPECT_EQ(prefs.saveFolder(), m_root.filePath(u"Pictures/Pixmallow"_s));

    prefs.registerDefaults();
    EXPECT_TRUE(prefs.get(keys.autoSave));
    EXPECT_EQ(prefs.get(keys.delaySeconds), 3);
    EXPECT_EQ(prefs.get(*keys.hotkey(u"text")), u"23:4608:5"_s);
    EXPECT_EQ(keys.hotkey(u"none"), nullptr);
    EXPECT_EQ(prefs.get(keys.saveFolder), prefs.defaultFolder());
    EXPECT_EQ(std::ranges::count_if(keys.all(), &AnyPrefKey::isRegistered), 28);
    EXPECT_FALSE(QFile::exists(m_path)) << "defaults belong to the program, not to the user";
}

TEST_F(PrefsTest, whatTheUserSetOutlivesTheProgramInItsType)
{
    const QDateTime moment(QDate(2024, 2, 29), QTime(23, 59, 59, 125), Qt::OffsetFromUTC, 7200);
    {
        Prefs prefs(m_folders);
        prefs.set(keys.autoSave, false);
        prefs.set(keys.skipVersion, u"false"_s);
        prefs.set(keys.previewSeconds, 6); // As the default, and yet the user's.
        prefs.set(keys.soundVolume, 1.0);
        prefs.set(keys.lastUpdateCheck, moment);
    }
    Prefs prefs(m_folders);
    prefs.registerDefaults();
    EXPECT_FALSE(prefs.get(keys.autoSave));
    EXPECT_EQ(prefs.get(keys.skipVersion), u"false"_s);
    EXPECT_EQ(prefs.get(keys.soundVolume), 1.0);
    EXPECT_EQ(prefs.get(keys.lastUpdateCheck), moment);
    EXPECT_EQ(stored(),
        (QJsonObject {{u"autoSave"_s, false}, {u"skipVersion"_s, u"false"_s},
            {u"previewSeconds"_s, 6}, {u"soundVolume"_s, 1},
            {u"lastUpdateCheck"_s, u"2024-02-29T21:59:59.125Z"_s}}));
    struct stat status { };
    ASSERT_EQ(stat(QFile::encodeName(m_path).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0600u);

    prefs.unset(keys.autoSave);
    EXPECT_TRUE(prefs.get(keys.autoSave));
    EXPECT_TRUE(prefs.flush());
    EXPECT_FALSE(stored().contains(u"autoSave"_s));
}

TEST_F(PrefsTest, readsOddValuesAsTheTableSays)
{
    ASSERT_TRUE(QDir().mkpath(m_folders.configuration));
    const QByteArray odd = R"({"autoSave": "false", "autoUpdate": 0, "delaySeconds": 2.5,
        "historyMax": 1e300, "lastUpdateCheck": "soon", "imageFormat": "JPG", "saveFolder": "",
        "sound": 7, "soundVolume": "1", "not ours": {"a": [1, null]}})";
    write(m_path, odd);
    Prefs prefs(m_folders);
    prefs.registerDefaults();
    EXPECT_TRUE(prefs.get(keys.autoSave));
    EXPECT_TRUE(prefs.get(keys.autoUpdate));
    EXPECT_EQ(prefs.get(keys.delaySeconds), 3);
    EXPECT_EQ(prefs.get(keys.historyMax), 200);
    EXPECT_EQ(prefs.get(keys.lastUpdateCheck).date().year(), 1);
    EXPECT_EQ(prefs.get(keys.sound), u"Screen Capture"_s);
    EXPECT_EQ(prefs.get(keys.soundVolume), 0.8);
    EXPECT_EQ(prefs.saveFolder(), prefs.defaultFolder());
    for (const auto& format : {u"JPG"_s, u"jpeg"_s, u"gif"_s, u"jpg "_s}) {
        prefs.set(keys.imageFormat, format);
        EXPECT_EQ(prefs.imageFormat(), u"png"_s) << qPrintable(format);
    }
    prefs.set(keys.imageFormat, u"jpg"_s);
    EXPECT_EQ(prefs.imageFormat(), u"jpg"_s);
    EXPECT_FALSE(prefs.setValue(keys.delaySeconds, u"3"_s));

    EXPECT_TRUE(prefs.flush());
    auto expected = QJsonDocument::fromJson(odd).object();
    expected.insert(u"imageFormat"_s, u"jpg"_s);
    EXPECT_EQ(stored(), expected) << "what is not set anew stays as it was";
}

TEST_F(PrefsTest, announcesWhatReadsDifferentlyAndNothingElse)
{
    Prefs prefs(m_folders);
    Prefs other(m_folders);
    prefs.registerDefaults();
    other.registerDefaults();
    QStringList heard;
    QStringList heardByOther;
    QObject::connect(&prefs, &Prefs::changed, [&](const QString& key) { heard << key; });
    QObject::connect(&other, &Prefs::changed, [&](const QString& key) { heardByOther << key; });

    prefs.set(keys.skin, u"default"_s);
    prefs.set(keys.delaySeconds, 5);
    prefs.set(keys.delaySeconds, 5);
    EXPECT_THAT(heard, ElementsAre(u"delaySeconds"_s)) << "at once";
    EXPECT_TRUE(eventually([&] { return other.get(keys.delaySeconds) == 5; }));
    EXPECT_THAT(heardByOther, ElementsAre(u"delaySeconds"_s));

    for (int i = 10; i < 13; ++i) { // Again and again, for each rename ends the watch.
        other.set(keys.delaySeconds, i);
        EXPECT_TRUE(eventually([&] { return prefs.get(keys.delaySeconds) == i; }));
    }
    prefs.set(keys.historyMax, 9); // Not written yet when the other's is read.
    other.set(keys.delaySeconds, 13);
    EXPECT_TRUE(other.flush());
    EXPECT_TRUE(eventually([&] { return other.get(keys.historyMax) == 9; }));
    EXPECT_EQ(heard.count(u"historyMax"_s), 1);

    write(m_path, "{\"delaySec"); // An editor that writes in place, slowly.
    const QDeadlineTimer pause(100);
    EXPECT_TRUE(eventually([&] { return pause.hasExpired(); }));
    EXPECT_EQ(prefs.get(keys.delaySeconds), 13);
    write(m_path, "{\"delaySeconds\": 4}");
    EXPECT_TRUE(eventually([&] { return prefs.get(keys.delaySeconds) == 4; }));
    EXPECT_EQ(heard.count(u"delaySeconds"_s), 6);
    EXPECT_EQ(QDir(m_folders.configuration).entryList({u"*.json*"_s}, QDir::Files).size(), 1);
}

TEST_F(PrefsTest, writersOfDifferentKeysKeepOneAnothersValues)
{
    constexpr int writers = 4;
    const auto rows = keys.all().subspan(0, writers);
    for (const AnyPrefKey* key : rows)
        if (fork() == 0) {
            bool isWritten = true;
            for (int i = 0; i < 8; ++i) {
                Prefs prefs(m_folders);
                isWritten = prefs.setValue(*key, QString::number(i)) && prefs.flush() && isWritten;
            }
            _exit(isWritten ? 0 : 1);
        }
    for (int status = 0; wait(&status) > 0;)
        EXPECT_EQ(status, 0);
    const Prefs prefs(m_folders);
    for (const AnyPrefKey* key : rows)
        EXPECT_EQ(prefs.value(*key), u"7"_s) << key->name;
}

TEST_F(PrefsTest, setsADamagedFileAsideWithItsContent)
{
    ASSERT_TRUE(QDir().mkpath(m_folders.configuration));
    for (int i = 1; i <= 2; ++i) {
        write(m_path, "{\"skin\": \"mine\", oops " + QByteArray::number(i));
        Prefs prefs(m_folders);
        prefs.registerDefaults();
        EXPECT_EQ(prefs.get(keys.skin), u"default"_s);
        EXPECT_FALSE(QFile::exists(m_path));
    }
    const QDir folder(m_folders.configuration);
    const auto damaged
        = folder.entryList({u"preferences.json.damaged-*"_s}, QDir::Files, QDir::Name);
    ASSERT_EQ(damaged.size(), 2);
    EXPECT_TRUE(contentOf(folder.filePath(damaged.at(0))).endsWith("oops 1"));
    EXPECT_TRUE(contentOf(folder.filePath(damaged.at(1))).endsWith("oops 2"));

    Prefs prefs(m_folders);
    prefs.set(keys.skin, u"ocean"_s);
    EXPECT_TRUE(prefs.flush());
    write(m_path, "[damaged while running]");
    prefs.set(keys.sound, u"Pop"_s);
    EXPECT_TRUE(prefs.flush());
    EXPECT_EQ(stored(), (QJsonObject {{u"skin"_s, u"ocean"_s}, {u"sound"_s, u"Pop"_s}}));
    EXPECT_EQ(folder.entryList({u"*.json*"_s}, QDir::Files).size(), 4);
}

TEST_F(PrefsTest, makesWhateverTheFileHoldsIntoPreferencesAndLosesNothing)
{
    static constexpr std::array tokens {"null", "true", "false", "0", "-1", "2.5", "1e400",
        "2147483648", "9007199254740993", "\"\"", "\"jpg\"", "\"false\"", "\"\\ud800\"",
        "\"\\u0000\"", "[]", "{}", "{\"a\":[1]}", ",", "}", "\"", "\"9999-12-31T23:59:60Z\"",
        "\"-0001-01-01T00:00:00Z\"", "\xff"};
    QJsonObject sample {{u"not ours"_s, QJsonArray {1, QJsonValue::Null}}};
    for (const AnyPrefKey* key : keys.all())
        sample.insert(QLatin1String(key->name), key->toJson(key->defaultValue()));
    ASSERT_TRUE(QDir().mkpath(m_folders.configuration));
    int damaged = 0;
    const int rounds = soaked(150);
    for (int round = 0; round < rounds; ++round) {
        std::mt19937 random(static_cast<unsigned>(round));
        const auto below = [&](qsizetype limit) { return qsizetype(random() % quint64(limit)); };
        QByteArray text = QJsonDocument(sample).toJson();
        for (auto changes = 1 + below(4); changes > 0; --changes) {
            const auto place = below(text.size());
            const auto colon = text.indexOf(": ", place), end = text.indexOf(",\n", colon);
            if (below(5) && colon >= 0 && end > colon) // A value, whole.
                text.replace(colon + 2, end - colon - 2, tokens[std::size_t(below(tokens.size()))]);
            else if (below(2))
                text[place] = char(random());
            else
                text.remove(place, 1 + below(4));
        }
        write(m_path, text);
        const auto document = QJsonDocument::fromJson(text);
        Prefs prefs(m_folders, Prefs::Watch::Nothing);
        prefs.registerDefaults();
        for (const AnyPrefKey* key : keys.all()) {
            const auto value = prefs.value(*key);
            ASSERT_TRUE(!value.isValid() || value.metaType() == key->type)
                << round << ": " << key->name;
        }
        ASSERT_FALSE(prefs.saveFolder().isEmpty()) << round;

        prefs.set(keys.petReactions, false);
        ASSERT_TRUE(prefs.flush()) << round << ": " << text.constData();
        auto expected = document.object();
        expected.insert(u"petReactions"_s, false);
        ASSERT_EQ(stored(), expected) << round << ": " << text.constData();
        if (document.isObject())
            continue;
        const auto aside = QDir(m_folders.configuration)
                               .entryInfoList({u"preferences.json.damaged-*"_s}, QDir::Files);
        ASSERT_EQ(aside.size(), 1) << round;
        ASSERT_EQ(contentOf(aside.first().filePath()), text) << round;
        ASSERT_TRUE(QFile::remove(aside.first().filePath()));
        ++damaged;
    }
    EXPECT_GT(damaged, rounds / 10);
    EXPECT_LT(damaged, rounds * 9 / 10) << "of what cannot be read, nothing is tried";
}

TEST_F(PrefsTest, doesNotWaitForWhoeverMightWriteIntoAPipe)
{
    ASSERT_TRUE(QDir().mkpath(m_folders.configuration));
    ASSERT_EQ(mkfifo(QFile::encodeName(m_path).constData(), 0600), 0);
    Prefs prefs(m_folders);
    prefs.set(keys.historyMax, 50);
    EXPECT_EQ(prefs.get(keys.historyMax), 50);
    EXPECT_FALSE(prefs.flush());
    ASSERT_TRUE(QFile::remove(m_path));
    EXPECT_TRUE(prefs.flush());
    EXPECT_EQ(stored().value(u"historyMax"_s), 50);
}

TEST_F(PrefsTest, aValueThatCannotBeWrittenHoldsAndIsWrittenLater)
{
    write(m_folders.configuration, "a file where the folder should be");
    Prefs prefs(m_folders);
    QStringList complaints;
    QObject::connect(&prefs, &Prefs::saveFailed, [&](const QString& text) { complaints << text; });
    prefs.set(keys.historyMax, 50);
    EXPECT_TRUE(eventually([&] { return !complaints.isEmpty(); }));
    EXPECT_THAT(complaints,
        ElementsAre(u"Couldn't use the folder “%1”: it is a file."_s.arg(m_folders.configuration)));
    EXPECT_EQ(prefs.get(keys.historyMax), 50);
    EXPECT_FALSE(prefs.flush());

    ASSERT_TRUE(QFile::remove(m_folders.configuration));
    prefs.set(keys.historyMax, 50);
    EXPECT_TRUE(eventually([&] { return stored().value(u"historyMax"_s) == 50; }));
    EXPECT_EQ(complaints.size(), 1);
    Prefs other(m_folders);
    other.set(keys.historyMax, 60);
    EXPECT_TRUE(eventually([&] { return prefs.get(keys.historyMax) == 60; }));
}
