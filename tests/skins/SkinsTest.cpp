// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "skins/Skins.h"

#include "platform/fake/FakePlatform.h"
#include "platform/freedesktop/PulseSoundOutput.h"
#include "skins/Sounds.h"
#include "tests/TestUser.h"

#include <gmock/gmock.h>

#include <QSet>

using namespace Qt::StringLiterals;

namespace {

class SkinsTest : public testing::Test, protected TestUser {
protected:
    FakeAppearance appearance;
    Skins skins {prefs, appearance};
};

} // namespace

TEST_F(SkinsTest, everySkinIsWholeAndAudible)
{
    const PulseSoundOutput output;
    FakeSoundOutput unused;
    const SynthSounds synthesised(folders, prefs, unused);
    const Sounds sounds(prefs, synthesised, unused, {});
    QSet<QString> ids;
    for (const auto& skin : Skins::all()) {
        SCOPED_TRACE(skin.id.toStdString());
        ids << skin.id;
        EXPECT_EQ(Skins::find(skin.id).id, skin.id);
        EXPECT_EQ(skin.accentHex.has_value(), skin.id != u"default"_s);
        EXPECT_EQ(skin.tintHex.has_value(), skin.tintAmount > 0);
        EXPECT_TRUE(!skin.accentHex || skin.accent()->isValid());
        EXPECT_TRUE(!skin.tintHex || skin.tint()->isValid());
        const auto sound = sounds.url(skin.sound);
        ASSERT_TRUE(sound);
        const auto playable = output.check(*sound);
        EXPECT_TRUE(playable) << playable.error().message.toStdString();
    }
    EXPECT_EQ(ids.size(), Skins::all().size());
    EXPECT_EQ(Skins::all().front().id, u"default"_s);
    EXPECT_EQ(Skins::find(u"sunset"_s).accent(), QColor(255, 122, 89));
}

TEST_F(SkinsTest, theDefaultSkinLeavesWhatOthersBrought)
{
    prefs.set(Prefs::keys.sound, u"/home/me/a.wav"_s);
    skins.use(u"default"_s);
    EXPECT_EQ(prefs.get(Prefs::keys.sound), u"/home/me/a.wav"_s);

    skins.use(u"cyber"_s);
    EXPECT_EQ(prefs.get(Prefs::keys.previewEffect), u"comet"_s);
    EXPECT_EQ(prefs.get(Prefs::keys.effectColors), u"neon"_s);
    EXPECT_TRUE(skins.isDark());

    skins.use(u"default"_s);
    EXPECT_EQ(prefs.get(Prefs::keys.skin), u"default"_s);
    EXPECT_EQ(prefs.get(Prefs::keys.sound), u"Zap"_s);
    EXPECT_EQ(prefs.get(Prefs::keys.captureAnimation), u"pixels"_s);
    EXPECT_FALSE(skins.isDark());
}

TEST_F(SkinsTest, unknownNamesMeanTheDefaultSkin)
{
    prefs.set(Prefs::keys.skin, u"Cyber"_s);
    EXPECT_EQ(skins.current().id, u"default"_s);
    EXPECT_EQ(Skins::find(std::nullopt).id, u"default"_s);

    skins.use(u"sunset"_s);
    skins.use(u"gone"_s);
    EXPECT_EQ(prefs.get(Prefs::keys.skin), u"default"_s);
    EXPECT_EQ(prefs.get(Prefs::keys.sound), u"Boom"_s);
}

TEST_F(SkinsTest, followsTheDesktopWhereTheSkinSaysNothing)
{
    appearance.look.dark = true;
    int applied = 0;
    QObject::connect(&skins, &Skins::applied, [&] { ++applied; });
    skins.apply();
    EXPECT_TRUE(skins.isDark());
    appearance.set({.dark = false});
    EXPECT_FALSE(skins.isDark());
    EXPECT_EQ(applied, 2);

    skins.use(u"kawaii"_s);
    appearance.set({.dark = true});
    EXPECT_FALSE(skins.isDark());
    EXPECT_EQ(applied, 4); // The desktop's accent may have changed too.
    skins.use(u"kawaii"_s);
    EXPECT_EQ(applied, 4);

    prefs.set(Prefs::keys.skin, u"default"_s); // By another process, for example.
    EXPECT_TRUE(skins.isDark());
    EXPECT_EQ(applied, 5);
}
