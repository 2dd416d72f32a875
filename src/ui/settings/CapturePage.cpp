// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "ui/settings/SettingsPages.h"

#include <QComboBox>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr const PrefKeys& keys = Prefs::keys;

} // namespace

void SettingsPages::fillCapture(SettingsPage& page, const SettingsMeans& means)
{
    page.addGroup(u"Selecting a region"_s);
    page.addSwitch(keys.showMagnifier,
        {u"Magnifier"_s, u"With the position and the colour under the pointer."_s});
    page.addSwitch(keys.showCrosshair, {u"Crosshair across the screen"_s});

    page.addGroup(u"In the picture"_s);
    page.addSwitch(keys.includeCursor, {u"Mouse pointer"_s});
    page.addSwitch(keys.windowShadow, {u"Shadow around windows"_s});

    page.addGroup(u"Delayed capture"_s);
    page.addChoice(
        keys.delaySeconds, {u"Count down from"_s}, seconds({2, 3, 5, 10, 15, 30}), secondsTitle);
    page.addSwitch(keys.captureOpenMenus,
        {u"Shortcuts work while a menu is open"_s,
            u"For that Pixmallow listens to every key you press. It keeps none of them."_s});

    RowGroup& animation = page.addGroup(u"Animation"_s);
    auto* kind = page.choice(keys.captureAnimation,
        {{u"none"_s, u"None"_s}, {u"flash"_s, u"Flash"_s}, {u"confetti"_s, u"Confetti"_s},
            {u"sparkles"_s, u"Sparkles"_s}, {u"pixels"_s, u"Pixels"_s}, {u"fly"_s, u"Fly away"_s}},
        [](const QVariant&) { return u"Flash"_s; });
    animation.addRow(
        {u"When a capture is taken"_s}, beside({kind, button(u"Try"_s, means.tryAnimation)}));
}
