// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/Theme.h"
#include "widgets/Contrast.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

double ratioOver(QColor ink, QColor translucent, QColor below)
{
    return Contrast::ratio(ink, Contrast::over(translucent, below));
}

} // namespace

TEST(ContrastTest, followsTheFormula)
{
    EXPECT_NEAR(Contrast::ratio(Qt::black, Qt::white), 21, 0.01);
    EXPECT_NEAR(Contrast::ratio(QColor(0x777777), Qt::white), 4.48, 0.01);
    EXPECT_EQ(Contrast::readable(Qt::black, {Qt::white}), QColor(Qt::black)) << "left as it is";
    EXPECT_GE(Contrast::ratio(Contrast::readable(Qt::yellow, {Qt::white}), Qt::white), 4.5);
    EXPECT_EQ(Contrast::onGround(QColor(0xffcc00)), QColor(Qt::black));
}

TEST(ThemeTest, staysReadableInEverySkinOnEveryGround)
{
    const QList<std::optional<QColor>> desktopAccents {
        std::nullopt, QColor(0xffee00), QColor(0x101010), QColor(0xf0f0f0), QColor(0xff0000)};
    for (const Skin& skin : Skins::all())
        for (const bool dark : {false, true})
            for (const auto& accent : desktopAccents) {
                if (skin.mode && *skin.mode != (dark ? u"dark"_s : u"light"_s))
                    continue;
                SCOPED_TRACE((skin.id + (dark ? u" dark"_s : u" light"_s)).toStdString());
                const Theme theme = Theme::of(skin, dark, {.dark = dark, .accent = accent});
                for (const auto& ink : {theme.text, theme.secondary}) {
                    for (const auto& ground : {theme.window, theme.sidebar, theme.well})
                        EXPECT_GE(Contrast::ratio(ink, ground), Contrast::text);
                    // Whatever lies below the card, and on controls.
                    for (const QColor below : {Qt::black, Qt::white}) {
                        EXPECT_GE(ratioOver(ink, theme.card, below), Contrast::text);
                        const QColor card = Contrast::over(theme.card, below);
                        EXPECT_GE(ratioOver(ink, theme.fillPressed, card), Contrast::text);
                    }
                }
                for (const auto& ground : {theme.accent, theme.accentHover, theme.accentPressed})
                    EXPECT_GE(Contrast::ratio(theme.onAccent, ground), Contrast::text);
                QColor card = theme.card;
                card.setAlphaF(1);
                EXPECT_GE(Contrast::ratio(theme.accentSymbol, card), Contrast::symbol);
                EXPECT_GE(Contrast::ratio(theme.failure, card), Contrast::symbol);
            }
}

TEST(ThemeTest, obeysTheDesktop)
{
    const Skin& plain = Skins::find(u"default"_s);
    const auto usual = Theme::of(plain, false, {});
    const auto asked = Theme::of(plain, false,
        {.accent = QColor(0x884422), .reducedMotion = true, .highContrast = true, .textScale = 2});
    EXPECT_EQ(asked.accent, QColor(0x884422));
    EXPECT_TRUE(asked.reducedMotion);
    EXPECT_EQ(asked.secondary, asked.text);
    EXPECT_GT(asked.hairline.alpha(), usual.hairline.alpha());
    EXPECT_EQ(asked.font(TextStyle::Title1).pixelSize(), 44);
    EXPECT_NE(Theme::of(Skins::find(u"kawaii"_s), false, {}).card, usual.card);
}
