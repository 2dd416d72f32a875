// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "ui/settings/SettingsPages.h"

#include "ui/settings/SoundChoice.h"

#include <QPushButton>
#include <QSlider>

using namespace Qt::StringLiterals;

namespace {

constexpr const PrefKeys& keys = Prefs::keys;

} // namespace

void SettingsPages::fillSound(SettingsPage& page, const SettingsMeans& means)
{
    RowGroup& tile = page.addGroup();
    page.addSwitch(keys.playSound, {u"Play a sound at each capture"_s});
    const auto play = [&means] {
        means.sounds.play(means.prefs.get(keys.sound), means.prefs.get(keys.soundVolume));
    };
    auto* sound = new SoundChoice(means.prefs, means.sounds);
    auto* row = tile.addRow({u"Sound"_s}, beside({sound, button(u"Play"_s, play)}));
    QObject::connect(sound, &SoundChoice::chosen, row, play);
    QObject::connect(sound, &SoundChoice::refused, row, &Row::setExplanation);

    auto* volume = page.slider(keys.soundVolume);
    volume->setFixedWidth(180);
    QObject::connect(volume, &QSlider::sliderReleased, row, play);
    tile.addRow({u"Volume"_s}, volume);
}
