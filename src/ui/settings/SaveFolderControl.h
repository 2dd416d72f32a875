// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Prefs.h"
#include "widgets/TextLabel.h"

/// Shows the folder that captures are saved in, and has the user choose another one.
class SaveFolderControl final : public QWidget {
    Q_OBJECT

public:
    SaveFolderControl(const Themes& themes, Prefs& prefs);

private:
    void show(const QString& folder);
    void choose();

    Prefs& m_prefs;
    TextLabel* m_name;
};
