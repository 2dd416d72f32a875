// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "ui/settings/SettingsPages.h"

#include "base/Words.h"

#include <QComboBox>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr const PrefKeys& keys = Prefs::keys;

} // namespace

void SettingsPages::fillCapture(SettingsPage& page, const SettingsMeans& means)
{
    page.addGroup(Words::tr("Selecting a region"));
    page.addSwitch(keys.showMagnifier,
        {Words::tr("Magnifier"), Words::tr("With the position and the colour under the pointer.")});
    page.addSwitch(keys.showCrosshair, {Words::tr("Crosshair across the screen")});

    page.addGroup(Words::tr("In the picture"));
    page.addSwitch(keys.includeCursor, {Words::tr("Mouse pointer")});
    page.addSwitch(keys.windowShadow, {Words::tr("Shadow around windows")});

    page.addGroup(Words::tr("Delayed capture"));
    page.addChoice(keys.delaySeconds, {Words::tr("Count down from")},
        seconds({2, 3, 5, 10, 15, 30}), secondsTitle);
    page.addSwitch(keys.captureOpenMenus,
        {Words::tr("Shortcuts work while a menu is open"),
            Words::tr(
                "For that Pixmallow listens to every key you press. It keeps none of them.")});

    RowGroup& animation = page.addGroup(Words::tr("Animation"));
    auto* kind = page.choice(keys.captureAnimation,
        {{u"none"_s, Words::tr("None")}, {u"flash"_s, Words::tr("Flash")},
            {u"confetti"_s, Words::tr("Confetti")}, {u"sparkles"_s, Words::tr("Sparkles")},
            {u"pixels"_s, Words::tr("Pixels")}, {u"fly"_s, Words::tr("Fly away")}},
        [](const QVariant&) { return Words::tr("Flash"); });
    animation.addRow({Words::tr("When a capture is taken")},
        beside({kind, button(Words::tr("Try"), means.tryAnimation)}));
}
