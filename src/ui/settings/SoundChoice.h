// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "skins/Sounds.h"

#include <QComboBox>

/// The capture sound: one of the catalogue, or a file of the user's.
class SoundChoice final : public QComboBox {
    Q_OBJECT

public:
    SoundChoice(Prefs& prefs, const Sounds& sounds);

Q_SIGNALS:
    void chosen(); ///< By the user, and set.
    void refused(const QString& reason); ///< A sentence; empty once a sound was taken again.

private:
    void list();
    void take(int index);
    void chooseFile();
    void takeFile(const QString& path);

    Prefs& m_prefs;
    const Sounds& m_sounds;
};
