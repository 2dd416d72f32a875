// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "skins/Skins.h"
#include "skins/Sounds.h"
#include "widgets/Theme.h"

#include <QWidget>

class QButtonGroup;

/// A button for each skin; the one that is worn is marked. A click puts a skin on and plays its
/// sound.
class SkinPicker final : public QWidget {
    Q_OBJECT

public:
    SkinPicker(const Themes& themes, const Prefs& prefs, Skins& skins, Sounds& sounds);

private:
    void choose(int index);
    void mark();

    const Prefs& m_prefs;
    Skins& m_skins;
    Sounds& m_sounds;
    QButtonGroup* m_buttons;
};
