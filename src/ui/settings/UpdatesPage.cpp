// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "ui/settings/SettingsPages.h"

#include "base/Words.h"

#include <QLocale>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr const PrefKeys& keys = Prefs::keys;

QString lastCheck(const Prefs& prefs)
{
    const QDateTime time = prefs.get(keys.lastUpdateCheck);
    const QString never = Words::tr("Not checked yet.");
    return time.isValid() && time > AnyPrefKey(keys.lastUpdateCheck).defaultValue().toDateTime()
        ? Words::tr("Last checked %1.")
              .arg(QLocale().toString(time.toLocalTime(), QLocale::ShortFormat))
        : never;
}

} // namespace

void SettingsPages::fillUpdates(SettingsPage& page, const SettingsMeans& means)
{
    RowGroup& tile = page.addGroup();
    page.addSwitch(keys.autoUpdate, {Words::tr("Check for updates automatically")});
    Updater& updater = means.updater;
    auto* check = button(Words::tr("Check Now"), [&updater] { updater.check(true); });
    auto* version = tile.addRow({u"Pixmallow %1"_s.arg(updater.currentVersion())}, check);
    const auto show = [&page, &updater, version, check] {
        version->setExplanation(
            updater.status().isEmpty() ? lastCheck(page.prefs()) : updater.status());
        check->setEnabled(!updater.isChecking());
    };
    page.follow(keys.lastUpdateCheck, show);
    QObject::connect(&updater, &Updater::changed, version, show);

    auto* skipped = tile.addRow({{}, Words::tr("You chose to skip this version.")},
        button(Words::tr("Offer it again"), [&page] { page.prefs().unset(keys.skipVersion); }));
    page.follow(keys.skipVersion, [&page, skipped] {
        const QString number = page.prefs().get(keys.skipVersion);
        skipped->setLabel(Words::tr("Version %1").arg(number));
        skipped->setVisible(!number.isEmpty());
    });
}
