// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/settings/SettingsMeans.h"
#include "ui/settings/SettingsPage.h"

class QPushButton;

/// What is on each page. The means and the page live equally long.
namespace SettingsPages {

void fillGeneral(SettingsPage& page, const SettingsMeans& means);
void fillCapture(SettingsPage& page, const SettingsMeans& means);
void fillPreview(SettingsPage& page, const SettingsMeans& means);
void fillSound(SettingsPage& page, const SettingsMeans& means);
void fillShortcuts(SettingsPage& page, const SettingsMeans& means);
void fillFun(SettingsPage& page, const SettingsMeans& means);
void fillUpdates(SettingsPage& page, const SettingsMeans& means);
void fillDiagnosis(SettingsPage& page, const SettingsMeans& means);
void fillAbout(SettingsPage& page, const SettingsMeans& means);

/// A list of numbers of seconds to choose from; 0 is called as given.
QList<SettingsPage::Choice> seconds(const QList<int>& numbers, const QString& zero = {});
QString secondsTitle(const QVariant& number);

/// For what the user does rather than sets.
QPushButton* button(const QString& text, const std::function<void()>& clicked);

/// Several controls as that of one row, which is about the first of them.
QWidget* beside(const QList<QWidget*>& controls);

} // namespace SettingsPages
