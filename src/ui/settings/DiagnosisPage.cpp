// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "ui/settings/DiagnosisView.h"
#include "ui/settings/SettingsPages.h"

void SettingsPages::fillDiagnosis(SettingsPage& page, const SettingsMeans& means)
{
    page.addBelow(new DiagnosisView({means.themes, means.clipboard, means.examine}));
}
