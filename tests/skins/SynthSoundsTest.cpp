// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "skins/SynthSounds.h"

#include "platform/fake/FakePlatform.h"
#include "skins/SynthRecipes.h"
#include "skins/WavFile.h"
#include "tests/TestFiles.h"
#include "tests/TestUser.h"

#include <gmock/gmock.h>

#include <QtEndian>

#include <cmath>
#include <span>

using namespace Qt::StringLiterals;
using SynthRecipes::Samples;

namespace {

/// Of the samples between two moments in seconds.
std::span<const float> part(const Samples& samples, double from, double to)
{
    const auto index = [](double t) { return std::size_t(std::lround(t * 44'100)); };
    return std::span(samples).subspan(index(from), index(to) - index(from));
}

float loudest(std::span<const float> samples)
{
    float peak = 0;
    for (const float sample : samples)
        peak = std::max(peak, std::abs(sample));
    return peak;
}

/// In Hz, of a pure enough tone: half the changes of sign per second.
double pitch(std::span<const float> samples)
{
    int changes = 0;
    for (std::size_t i = 1; i < samples.size(); ++i)
        changes += (samples[i - 1] < 0) != (samples[i] < 0);
    return changes / 2.0 / (double(samples.size()) / 44'100);
}

QByteArray content(const QUrl& url)
{
    return contentOf(url.toLocalFile());
}

template <typename Number>
Number at(const QByteArray& file, qsizetype offset)
{
    return qFromLittleEndian<Number>(file.constData() + offset);
}

class SynthSoundsTest : public testing::Test, protected TestUser {
protected:
    FakeSoundOutput output;
    SynthSounds sounds {folders, prefs, output};
};

} // namespace

TEST(SynthRecipesTest, tonesRiseAndFallAsDescribed)
{
    using testing::DoubleNear;
    const auto chirp = SynthRecipes::chirp();
    for (const double start : {0.0, 0.11}) {
        EXPECT_THAT(pitch(part(chirp, start, start + 0.03)), DoubleNear(2'100, 100));
        EXPECT_THAT(pitch(part(chirp, start + 0.06, start + 0.09)), DoubleNear(3'130, 100));
        EXPECT_NEAR(loudest(part(chirp, start + 0.035, start + 0.055)), 0.6, 0.01);
        EXPECT_EQ(loudest(part(chirp, start + 0.0901, start + 0.1099)), 0);
    }
    const auto zap = SynthRecipes::zap();
    EXPECT_THAT(pitch(part(zap, 0, 0.01)), DoubleNear(2'600, 130));
    EXPECT_THAT(pitch(part(zap, 0.12, 0.22)), DoubleNear(405, 50));
    EXPECT_NEAR(loudest(zap), 0.75, 0.08);

    const auto coin = SynthRecipes::coin();
    EXPECT_THAT(pitch(part(coin, 0, 0.07)), DoubleNear(987.77, 10));
    EXPECT_THAT(pitch(part(coin, 0.07, 0.42)), DoubleNear(1'318.51, 5));
    EXPECT_NEAR(std::abs(coin[44]), 0.3 * 44 / 88.2, 0.001); // Half way through the attack.
    EXPECT_NEAR(loudest(part(coin, 0.17, 0.42)), 0.3 * std::exp(-0.7), 0.001);
}

TEST(SynthRecipesTest, chanceVariesButRepeatsFromASeed)
{
    for (auto* make : {&SynthRecipes::sparkle, &SynthRecipes::boom}) {
        QRandomGenerator one(7);
        QRandomGenerator same(7);
        QRandomGenerator other(8);
        const auto sound = make(one);
        EXPECT_EQ(sound, make(same));
        EXPECT_NE(sound, make(other));
    }
    QRandomGenerator random(1);
    for (int round = 0; round < 5; ++round) {
        const auto sparkle = SynthRecipes::sparkle(random);
        const double notes = loudest(part(sparkle, 0, 0.05)); // One or two have begun.
        EXPECT_GT(notes, 0.3);
        EXPECT_LT(notes, 2.2);
        EXPECT_LT(loudest(part(sparkle, 0.85, 0.9)), 0.2); // All have faded for 0.39 s or more.
        const auto boom = SynthRecipes::boom(random);
        EXPECT_THAT(loudest(boom), testing::AllOf(testing::Gt(0.75F), testing::Lt(1.4F)));
        EXPECT_LT(loudest(part(boom, 0.5, 0.6)), 0.06);
    }
}

TEST(WavFileTest, clampsAndTruncatesTowardsZero)
{
    const auto file = wavFile(std::vector {2.0F, -2.0F, 0.99999F, -0.99999F, 0.0F}, 44'100);
    const std::vector<std::int16_t> expected {32'000, -32'000, 31'999, -31'999, 0};
    ASSERT_EQ(file.size(), 44 + 10);
    for (std::size_t i = 0; i < expected.size(); ++i)
        EXPECT_EQ(at<std::int16_t>(file, 44 + 2 * qsizetype(i)), expected[i]);
}

TEST_F(SynthSoundsTest, writesFilesOfExactLengthAndLoudness)
{
    const QList<int> counts {10'584, 9'702, 18'522, 39'690, 26'460};
    for (int i = 0; i < counts.size(); ++i) {
        const QString name = SynthSounds::names()[i];
        SCOPED_TRACE(name.toStdString());
        const auto url = sounds.url(name);
        ASSERT_TRUE(url);
        EXPECT_EQ(url->fileName(), name.toLower() + u"_v1.wav"_s);
        const auto file = content(*url);
        const auto size = std::uint32_t(2 * counts[i]);
        ASSERT_EQ(file.size(), 44 + size);
        EXPECT_EQ(at<std::uint32_t>(file, 4), 36 + size);
        EXPECT_EQ(at<std::uint32_t>(file, 40), size);
        const auto header = QByteArray::fromHex("57415645666d74201000000001000100"
                                                "44ac0000"
                                                "88580100"
                                                "0200"
                                                "1000"
                                                "64617461");
        EXPECT_EQ(file.mid(8, 32), header);
        int peak = 0;
        for (qsizetype offset = 44; offset < file.size(); offset += 2)
            peak = std::max(peak, std::abs(at<std::int16_t>(file, offset)));
        EXPECT_EQ(peak, 28'800);
    }
    const QDir cache(folders.data + u"/sounds"_s);
    EXPECT_EQ(cache.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size(), 5);
}

TEST_F(SynthSoundsTest, keepsTheFirstFileAndStaysSilentAboutFailures)
{
    const auto first = sounds.url(u"Boom"_s);
    const auto before = content(*first);
    EXPECT_EQ(content(*sounds.url(u"Boom"_s)), before);
    ASSERT_TRUE(QFile::remove(first->toLocalFile()));
    EXPECT_NE(content(*sounds.url(u"Boom"_s)), before); // Made again, by another chance.

    EXPECT_FALSE(sounds.url(u"boom"_s));
    EXPECT_FALSE(sounds.url(u"Pop"_s));

    folders.data = first->toLocalFile(); // No folder can be made under a file.
    const auto unwritable = SynthSounds(folders, prefs, output).url(u"Zap"_s);
    ASSERT_TRUE(unwritable);
    EXPECT_FALSE(QFile::exists(unwritable->toLocalFile()));
}

TEST_F(SynthSoundsTest, playsQuieterThanCapturesAndOnlyIfSoundsAreOn)
{
    prefs.set(Prefs::keys.soundVolume, 0.5);
    sounds.play(u"sPARKLE"_s);
    sounds.play(u"Pop"_s);
    sounds.play(QString());
    prefs.set(Prefs::keys.playSound, false);
    sounds.play(u"sparkle"_s);
    ASSERT_EQ(output.played.size(), 1);
    EXPECT_EQ(output.played[0].file, sounds.url(u"Sparkle"_s));
    EXPECT_DOUBLE_EQ(output.played[0].volume, 0.35);
}
