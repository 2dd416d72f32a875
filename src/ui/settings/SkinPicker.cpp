// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "ui/settings/SkinPicker.h"

#include "ui/settings/SkinButton.h"

#include <QButtonGroup>
#include <QGridLayout>

namespace {

constexpr int columns = 4;

} // namespace

SkinPicker::SkinPicker(const Themes& themes, const Prefs& prefs, Skins& skins, Sounds& sounds)
    : m_prefs(prefs)
    , m_skins(skins)
    , m_sounds(sounds)
    , m_buttons(new QButtonGroup(this))
{
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins({});
    grid->setSpacing(Space::tiny);
    for (const Skin& skin : Skins::all()) {
        const int index = int(m_buttons->buttons().size());
        auto* button = new SkinButton(themes, skin);
        m_buttons->addButton(button, index);
        grid->addWidget(button, index / columns, index % columns);
    }
    connect(m_buttons, &QButtonGroup::idClicked, this, &SkinPicker::choose);
    connect(&m_prefs, &Prefs::changed, this, [this](const QString& key) {
        if (key == QLatin1String(Prefs::keys.skin.name))
            mark();
    });
    mark();
}

void SkinPicker::choose(int index)
{
    const Skin& skin = Skins::all().at(index);
    m_skins.use(skin.id);
    m_sounds.play(skin.sound, m_prefs.get(Prefs::keys.soundVolume));
}

void SkinPicker::mark()
{
    const QString worn = m_skins.current().id;
    for (int index = 0; index < Skins::all().size(); ++index)
        if (Skins::all().at(index).id == worn)
            m_buttons->button(index)->setChecked(true);
}
