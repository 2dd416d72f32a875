// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "ui/settings/SettingsPages.h"

#include "base/Words.h"
#include "ui/settings/SoundChoice.h"

#include <QPushButton>
#include <QSlider>

namespace {

constexpr const PrefKeys& keys = Prefs::keys;

} // namespace

void SettingsPages::fillSound(SettingsPage& page, const SettingsMeans& means)
{
    RowGroup& tile = page.addGroup();
    page.addSwitch(keys.playSound, {Words::tr("Play a sound at each capture")});
    const auto play = [&means] {
        means.sounds.play(means.prefs.get(keys.sound), means.prefs.get(keys.soundVolume));
    };
    auto* sound = new SoundChoice(means.prefs, means.sounds);
    auto* row = tile.addRow({Words::tr("Sound")}, beside({sound, button(Words::tr("Play"), play)}));
    QObject::connect(sound, &SoundChoice::chosen, row, play);
    QObject::connect(sound, &SoundChoice::refused, row, &Row::setExplanation);

    auto* volume = page.slider(keys.soundVolume);
    volume->setFixedWidth(180);
    QObject::connect(volume, &QSlider::sliderReleased, row, play);
    tile.addRow({Words::tr("Volume")}, volume);
}
