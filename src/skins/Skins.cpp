// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "skins/Skins.h"

#include "base/Words.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

Skins* s_shared = nullptr;

std::optional<QColor> colorOf(const std::optional<QString>& hex)
{
    return hex ? std::optional(QColor(*hex)) : std::nullopt;
}

} // namespace

QString Skin::name() const
{
    return Words::tr(englishName);
}

QString Skin::desc() const
{
    return Words::tr(englishDesc);
}

std::optional<QColor> Skin::accent() const
{
    return colorOf(accentHex);
}

std::optional<QColor> Skin::tint() const
{
    return colorOf(tintHex);
}

Skins::Skins(Prefs& prefs, const Appearance& appearance)
    : m_prefs(prefs)
    , m_appearance(appearance)
{
    connect(&m_appearance, &Appearance::changed, this, &Skins::apply);
    connect(&m_prefs, &Prefs::changed, this, [this](const QString& key) {
        if (key == QLatin1String(Prefs::keys.skin.name))
            apply();
    });
}

Skins& Skins::shared()
{
    Q_ASSERT(s_shared);
    return *s_shared;
}

void Skins::install()
{
    s_shared = this;
}

const QList<Skin>& Skins::all()
{
    static const QList<Skin> skins {
        {u"default"_s, QT_TRANSLATE_NOOP("Words", "macOS"), u"🍎"_s,
            QT_TRANSLATE_NOOP("Words", "Your system appearance and accent colour"), {}, {}, {}, 0,
            u"comet"_s, u"accent"_s, u"Screen Capture"_s, u"flash"_s},
        {u"kawaii"_s, QT_TRANSLATE_NOOP("Words", "Kawaii Pastel"), u"🎀"_s,
            QT_TRANSLATE_NOOP("Words", "Soft pink, bubbly pops and sparkles"), u"light"_s,
            u"#FF6FB5"_s, u"#FFD6EA"_s, 0.55, u"pulse"_s, u"candy"_s, u"Pop"_s, u"sparkles"_s},
        {u"cyber"_s, QT_TRANSLATE_NOOP("Words", "Cyber Neon"), u"👾"_s,
            QT_TRANSLATE_NOOP("Words", "Dark purple, neon cyan, laser zaps"), u"dark"_s,
            u"#00E5FF"_s, u"#1A0B2E"_s, 0.6, u"comet"_s, u"neon"_s, u"Zap"_s, u"pixels"_s},
        {u"matcha"_s, QT_TRANSLATE_NOOP("Words", "Matcha"), u"🍵"_s,
            QT_TRANSLATE_NOOP("Words", "Calm greens and quiet clicks"), u"light"_s, u"#5E9C4C"_s,
            u"#E3EED6"_s, 0.55, u"pulse"_s, u"mint"_s, u"Tink"_s, u"fly"_s},
        {u"midnight"_s, QT_TRANSLATE_NOOP("Words", "Midnight"), u"🌙"_s,
            QT_TRANSLATE_NOOP("Words", "Deep indigo with a gentle chime"), u"dark"_s, u"#9B7BFF"_s,
            u"#120F24"_s, 0.6, u"comet"_s, u"aurora"_s, u"Glass"_s, u"sparkles"_s},
        {u"sunset"_s, QT_TRANSLATE_NOOP("Words", "Sunset"), u"🌅"_s,
            QT_TRANSLATE_NOOP("Words", "Warm dusk tones and confetti"), u"dark"_s, u"#FF7A59"_s,
            u"#2A1416"_s, 0.55, u"spin"_s, u"sunset"_s, u"Boom"_s, u"confetti"_s},
        {u"y2k"_s, QT_TRANSLATE_NOOP("Words", "Y2K"), u"💿"_s,
            QT_TRANSLATE_NOOP("Words", "Chrome blue, 8-bit coins, early-internet energy"),
            u"light"_s, u"#4F7CFF"_s, u"#E8F0FF"_s, 0.6, u"spin"_s, u"rainbow"_s, u"Coin"_s,
            u"confetti"_s},
    };
    return skins;
}

const Skin& Skins::find(const std::optional<QString>& id)
{
    const auto found = std::ranges::find_if(all(), [&](const Skin& skin) { return skin.id == id; });
    return found == all().end() ? all().front() : *found;
}

const Skin& Skins::current() const
{
    return find(m_prefs.get(Prefs::keys.skin));
}

void Skins::use(const QString& id)
{
    const Skin& skin = find(id);
    m_prefs.set(Prefs::keys.skin, skin.id);
    if (skin.id != all().front().id) {
        m_prefs.set(Prefs::keys.previewEffect, skin.effect);
        m_prefs.set(Prefs::keys.effectColors, skin.effectColors);
        m_prefs.set(Prefs::keys.sound, skin.sound);
        m_prefs.set(Prefs::keys.captureAnimation, skin.animation);
    }
    apply();
}

void Skins::apply()
{
    const auto& mode = current().mode;
    if (mode == u"light"_s)
        m_dark = false;
    else if (mode == u"dark"_s)
        m_dark = true;
    else
        m_dark = m_appearance.current().dark;
    const Worn worn {current().id, m_appearance.current()};
    if (worn == m_worn)
        return;
    m_worn = worn;
    Q_EMIT applied();
}
