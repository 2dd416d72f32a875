// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "skins/Sounds.h"

#include "platform/fake/FakePlatform.h"
#include "tests/TestFiles.h"
#include "tests/TestUser.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

namespace {

class SoundsTest : public testing::Test, protected TestUser {
protected:
    FakeSoundOutput output;
    SynthSounds synthesised {folders, prefs, output};
    Sounds sounds {
        prefs, synthesised, output, {path(u"system"_s), path(u"missing"_s), path(u"user"_s)}};
};

} // namespace

TEST_F(SoundsTest, listsOwnSoundsFirstThenThoseOfTheDesktop)
{
    for (const auto& path : {u"system/zeta/stereo/bell.oga"_s, u"system/alpha/stereo/two.FLAC"_s,
             u"system/alpha/stereo/one.two.ogg"_s, u"system/alpha/stereo/Pop.wav"_s,
             u"system/alpha/stereo/notes.txt"_s, u"system/alpha/stereo/deep/er.wav"_s,
             u"system/alpha/surround/no.wav"_s, u"user/mine.M4A"_s, u"user/wav"_s})
        put(TestUser::path(path), {});
    QStringList names;
    const auto items = sounds.available();
    for (const auto& item : items)
        names << item.name;
    EXPECT_THAT(names,
        testing::ElementsAreArray(QStringList {u"Screen Capture"_s, u"Chirp"_s, u"Zap"_s, u"Coin"_s,
            u"Sparkle"_s, u"Boom"_s, u"Glass"_s, u"Pop"_s, u"Tink"_s, u"Pop"_s, u"one.two"_s,
            u"two"_s, u"bell"_s, u"mine"_s}));
    EXPECT_EQ(sounds.url(u"bell"_s), QUrl::fromLocalFile(path(u"system/zeta/stereo/bell.oga"_s)));
    EXPECT_EQ(sounds.url(u"Pop"_s), QUrl(u"qrc:/sounds/Pop.wav"_s)); // The first of that name.
}

TEST_F(SoundsTest, takesPathsAsTheyAreAndNamesExactly)
{
    EXPECT_EQ(sounds.url(u"/nowhere/50 %?.wav"_s)->toLocalFile(), u"/nowhere/50 %?.wav"_s);
    for (const auto& name : {u"screen capture"_s, u"Bell"_s, u"zap"_s, u""_s, u"~/a.wav"_s})
        EXPECT_FALSE(sounds.url(name)) << name.toStdString();
    EXPECT_TRUE(sounds.check(u"Tink"_s));
    EXPECT_EQ(sounds.check(u"Bell"_s).error().message, u"There is no sound named “Bell”."_s);
    output.damaged << QUrl(u"qrc:/sounds/Tink.wav"_s);
    EXPECT_FALSE(sounds.check(u"Tink"_s));
}

TEST_F(SoundsTest, synthesisesNothingBesidesWhatIsPlayed)
{
    sounds.playShutter();
    ASSERT_EQ(output.played.size(), 1);
    EXPECT_EQ(output.played[0].file, QUrl(u"qrc:/sounds/system/Screen Capture.wav"_s));
    EXPECT_DOUBLE_EQ(output.played[0].volume, 0.8);
    EXPECT_FALSE(QFile::exists(path(u"data/Pixmallow/sounds"_s)));
    sounds.play(u"Coin"_s, 1);
    EXPECT_EQ(QDir(path(u"data/Pixmallow/sounds"_s)).entryList(QDir::Files),
        QStringList(u"coin_v1.wav"_s));
}

TEST_F(SoundsTest, theShutterObeysThePreferences)
{
    prefs.set(Prefs::keys.sound, u"/home/me/a.wav"_s);
    prefs.set(Prefs::keys.soundVolume, 0.25);
    sounds.playShutter();
    ASSERT_EQ(output.played.size(), 1);
    EXPECT_EQ(output.played[0].file, QUrl::fromLocalFile(u"/home/me/a.wav"_s));
    EXPECT_DOUBLE_EQ(output.played[0].volume, 0.25);

    prefs.set(Prefs::keys.sound, u"Gone"_s);
    sounds.playShutter();
    prefs.set(Prefs::keys.sound, u"Pop"_s);
    prefs.set(Prefs::keys.playSound, false);
    sounds.playShutter();
    EXPECT_EQ(output.played.size(), 1);
    sounds.play(u"Pop"_s, 1); // Somebody tries it in the settings.
    EXPECT_EQ(output.played.size(), 2);

    Prefs fresh({.configuration = path(u"fresh"_s)}, Prefs::Watch::Nothing);
    fresh.set(Prefs::keys.playSound, true);
    Sounds(fresh, synthesised, output, {}).playShutter();
    ASSERT_EQ(output.played.size(), 3);
    EXPECT_EQ(output.played[2].file.fileName(), u"Screen Capture.wav"_s);
}
