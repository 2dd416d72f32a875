// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/Theme.h"

#include "widgets/Contrast.h"

#include <QGuiApplication>

#include <array>
#include <cmath>

namespace {

constexpr double lineSpacing = 1.35; // Of the size of letters.

struct Letters {
    int size; // Points.
    QFont::Weight weight;
};

constexpr std::array letters {
    Letters {11, QFont::Normal}, // Caption
    Letters {12, QFont::Normal}, // Callout
    Letters {13, QFont::Normal}, // Body
    Letters {13, QFont::DemiBold}, // Headline
    Letters {15, QFont::DemiBold}, // Title3
    Letters {17, QFont::DemiBold}, // Title2
    Letters {22, QFont::Bold}, // Title1
    Letters {56, QFont::DemiBold}, // Countdown
};

constexpr std::array<QRgb, 12> systemColours {0xffff3b30, 0xffff9500, 0xffffcc00, 0xff28cd41,
    0xff00c7be, 0xff59adc4, 0xff55bef0, 0xff007aff, 0xff5856d6, 0xffaf52de, 0xffff2d55, 0xffa2845e};

/// What differs between light and dark, before skin and contrast.
struct Tones {
    QRgb card, window, sidebar, well, text, secondary, accent;
    float cardOpacity;
    int ink; // Grey level of fills and hairlines.
    float hairline, fill, hover, pressed, shadow; // Opacities.
};

constexpr Tones lightTones {0xfffafafc, 0xfff4f4f7, 0xffececf1, 0xffe6e6ea, 0xff1d1d1f, 0xff5f6068,
    0xff0a6cff, 0.94f, 0, 0.10f, 0.05f, 0.09f, 0.14f, 0.24f};
constexpr Tones darkTones {0xff1e1e22, 0xff232327, 0xff1b1b1f, 0xff161619, 0xfff5f5f7, 0xffa9a9b2,
    0xff3d93ff, 0.92f, 255, 0.10f, 0.08f, 0.13f, 0.18f, 0.48f};

QColor ink(const Tones& tones, float opacity)
{
    QColor colour(tones.ink, tones.ink, tones.ink);
    colour.setAlphaF(opacity);
    return colour;
}

/// All that text may stand on, with a pressed control in between and without.
QList<QColor> groundsOf(const Theme& theme, QColor pressed)
{
    QList<QColor> grounds {theme.window, theme.sidebar, theme.well,
        Contrast::over(theme.card, Qt::black), Contrast::over(theme.card, Qt::white)};
    for (const QColor& ground : QList(grounds))
        grounds << Contrast::over(pressed, ground);
    return grounds;
}

const Letters& lettersOf(TextStyle style)
{
    return letters.at(std::size_t(style));
}

} // namespace

Theme Theme::of(const Skin& skin, bool dark, const DesktopLook& desktop)
{
    const Tones& tones = dark ? darkTones : lightTones;
    const auto tinted = [&skin](QRgb tone) {
        const auto tint = skin.tint();
        return tint ? Contrast::mixed(QColor(tone), *tint, skin.tintAmount) : QColor(tone);
    };
    Theme theme;
    theme.dark = dark;
    theme.reducedMotion = desktop.reducedMotion;
    theme.textScale = desktop.textScale;
    theme.card = tinted(tones.card);
    theme.window = tinted(tones.window);
    theme.sidebar = tinted(tones.sidebar);
    theme.well = tinted(tones.well);

    theme.card.setAlphaF(tones.cardOpacity);
    const QList<QColor> grounds = groundsOf(theme, ink(tones, tones.pressed));
    theme.text = Contrast::readable(QColor(tones.text), grounds);
    theme.secondary
        = desktop.highContrast ? theme.text : Contrast::readable(QColor(tones.secondary), grounds);
    theme.hairline = ink(tones, desktop.highContrast ? 0.5f : tones.hairline);
    theme.fill = ink(tones, tones.fill);
    theme.fillHover = ink(tones, tones.hover);
    theme.fillPressed = ink(tones, tones.pressed);

    theme.accent = skin.accent().value_or(desktop.accent.value_or(QColor(tones.accent)));
    theme.onAccent = Contrast::onGround(theme.accent);
    const QColor away = theme.onAccent == QColor(Qt::white) ? Qt::black : Qt::white;
    theme.accentHover = Contrast::mixed(theme.accent, away, 0.08);
    theme.accentPressed = Contrast::mixed(theme.accent, away, 0.18);
    theme.accentSymbol = Contrast::readable(theme.accent, grounds, Contrast::symbol);
    theme.failure = Contrast::readable(system(SystemColour::Red), grounds, Contrast::symbol);
    theme.shadow = QColor::fromRgbF(0, 0, 0, tones.shadow);
    return theme;
}

QColor Theme::system(SystemColour colour)
{
    return QColor(systemColours.at(std::size_t(colour)));
}

QFont Theme::font(TextStyle style) const
{
    QFont font = QGuiApplication::font();
    font.setPixelSize(int(std::lround(lettersOf(style).size * textScale)));
    font.setWeight(lettersOf(style).weight);
    return font;
}

int Theme::lineHeight(TextStyle style) const
{
    return int(std::lround(lettersOf(style).size * textScale * lineSpacing));
}

QPalette Theme::palette() const
{
    QPalette palette(Contrast::over(fill, window), window);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::PlaceholderText, secondary);
    palette.setColor(QPalette::Base, Contrast::mixed(window, dark ? Qt::black : Qt::white, 0.5));
    palette.setColor(QPalette::AlternateBase, sidebar);
    palette.setColor(QPalette::ToolTipBase, sidebar);
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, onAccent);
    palette.setColor(QPalette::Link, Contrast::readable(accent, {window}));
    QColor disabled = text;
    disabled.setAlphaF(0.4f);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, disabled);
    return palette;
}

Themes::Themes(const Skins& skins, const Appearance& appearance)
    : m_skins(skins)
    , m_appearance(appearance)
{
    update();
    connect(&m_skins, &Skins::applied, this, &Themes::update);
}

void Themes::update()
{
    const auto theme = Theme::of(m_skins.current(), m_skins.isDark(), m_appearance.current());
    if (theme == m_current)
        return;
    m_current = theme;
    Q_EMIT changed();
}
