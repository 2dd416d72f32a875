// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "skins/SynthSounds.h"

#include "base/AtomicFile.h"
#include "skins/SynthRecipes.h"
#include "skins/WavFile.h"

#include <QFileInfo>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

SynthSounds* s_shared = nullptr;

/// Part of the file names. A changed recipe needs another one, or the old sound stays.
const QString version = u"_v1"_s;

/// How much quieter than captures these are when they are played by themselves.
constexpr double relativeVolume = 0.7;

struct Recipe {
    QString name;
    SynthRecipes::Samples (*make)(QRandomGenerator& random);
};

template <SynthRecipes::Samples (*make)()>
SynthRecipes::Samples withoutChance(QRandomGenerator& /*random*/)
{
    return make();
}

const std::array<Recipe, 5>& recipes()
{
    static const std::array<Recipe, 5> all {{
        {u"Chirp"_s, withoutChance<SynthRecipes::chirp>},
        {u"Zap"_s, withoutChance<SynthRecipes::zap>},
        {u"Coin"_s, withoutChance<SynthRecipes::coin>},
        {u"Sparkle"_s, SynthRecipes::sparkle},
        {u"Boom"_s, SynthRecipes::boom},
    }};
    return all;
}

QByteArray synthesise(const Recipe& recipe)
{
    auto samples = recipe.make(*QRandomGenerator::global());
    SynthRecipes::normalise(samples);
    return wavFile(samples, SynthRecipes::sampleRate);
}

} // namespace

SynthSounds::SynthSounds(const Folders& folders, const Prefs& prefs, SoundOutput& output)
    : m_folder(folders.data + u"/sounds"_s)
    , m_prefs(prefs)
    , m_output(output)
{
}

SynthSounds& SynthSounds::shared()
{
    Q_ASSERT(s_shared);
    return *s_shared;
}

void SynthSounds::install()
{
    s_shared = this;
}

const QStringList& SynthSounds::names()
{
    static const QStringList all = [] {
        QStringList list;
        for (const auto& recipe : recipes())
            list << recipe.name;
        return list;
    }();
    return all;
}

std::optional<QUrl> SynthSounds::url(const QString& name) const
{
    const auto recipe = std::ranges::find(recipes(), name, &Recipe::name);
    if (recipe == recipes().end())
        return std::nullopt;
    const QString path = u"%1/%2%3.wav"_s.arg(m_folder, name.toLower(), version);
    if (!QFileInfo::exists(path)) {
        std::ignore = ensurePrivateFolder(m_folder);
        std::ignore = writeFile(
            path, synthesise(*recipe), {AtomicFile::Existing::Keep, AtomicFile::Access::OwnerOnly});
    }
    return QUrl::fromLocalFile(path);
}

void SynthSounds::play(const QString& name)
{
    if (!m_prefs.get(Prefs::keys.playSound))
        return;
    const auto file = url(name.left(1).toUpper() + name.mid(1).toLower());
    if (file)
        m_output.play(*file, relativeVolume * m_prefs.get(Prefs::keys.soundVolume));
}
