// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "ui/settings/SettingsPages.h"

#include <QLocale>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr const PrefKeys& keys = Prefs::keys;

QString lastCheck(const Prefs& prefs)
{
    const QDateTime time = prefs.get(keys.lastUpdateCheck);
    const QString never = u"Not checked yet."_s;
    return time.isValid() && time > AnyPrefKey(keys.lastUpdateCheck).defaultValue().toDateTime()
        ? u"Last checked %1."_s.arg(QLocale().toString(time.toLocalTime(), QLocale::ShortFormat))
        : never;
}

} // namespace

void SettingsPages::fillUpdates(SettingsPage& page, const SettingsMeans& means)
{
    RowGroup& tile = page.addGroup();
    page.addSwitch(keys.autoUpdate, {u"Check for updates automatically"_s});
    Updater& updater = means.updater;
    auto* check = button(u"Check Now"_s, [&updater] { updater.check(true); });
    auto* version = tile.addRow({u"Pixmallow %1"_s.arg(updater.currentVersion())}, check);
    const auto show = [&page, &updater, version, check] {
        version->setExplanation(
            updater.status().isEmpty() ? lastCheck(page.prefs()) : updater.status());
        check->setEnabled(!updater.isChecking());
    };
    page.follow(keys.lastUpdateCheck, show);
    QObject::connect(&updater, &Updater::changed, version, show);

    auto* skipped = tile.addRow({{}, u"You chose to skip this version."_s},
        button(u"Offer it again"_s, [&page] { page.prefs().unset(keys.skipVersion); }));
    page.follow(keys.skipVersion, [&page, skipped] {
        const QString number = page.prefs().get(keys.skipVersion);
        skipped->setLabel(u"Version %1"_s.arg(number));
        skipped->setVisible(!number.isEmpty());
    });
}
