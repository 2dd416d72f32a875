// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "ui/settings/SettingsPages.h"

#include "ui/settings/SaveFolderControl.h"
#include "widgets/Switch.h"

#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr const PrefKeys& keys = Prefs::keys;

/// Not a preference: the desktop has its own list of what it starts.
void addStartAtLogin(SettingsPage& page, RowGroup& tile, const SettingsMeans& means)
{
    auto* control = new Switch(page.themes());
    auto* row = tile.addRow({u"Start at login"_s}, control);
    control->setChecked(means.workspace.startsAtLogin());
    QObject::connect(control, &QAbstractButton::clicked, row, [control, row, &means](bool isOn) {
        const auto done = means.workspace.setStartsAtLogin(isOn);
        row->setExplanation(done ? QString() : done.error().message);
        control->setChecked(means.workspace.startsAtLogin());
    });
}

QString entries(const QVariant& number)
{
    return u"%1 captures"_s.arg(number.toInt());
}

} // namespace

void SettingsPages::fillGeneral(SettingsPage& page, const SettingsMeans& means)
{
    RowGroup& saving = page.addGroup(u"Saving"_s);
    page.addSwitch(keys.autoSave, {u"Save every capture"_s});
    saving.addRow({u"Folder"_s}, new SaveFolderControl(page.themes(), page.prefs()));
    page.addChoice(keys.imageFormat, {u"Format"_s}, {{u"png"_s, u"PNG"_s}, {u"jpg"_s, u"JPEG"_s}},
        [](const QVariant&) { return u"PNG"_s; });
    page.addSwitch(keys.copyToClipboard, {u"Copy every capture"_s});

    page.addGroup();
    page.addChoice(keys.afterCapture, {u"After a capture"_s},
        {{u"preview"_s, u"Show a preview"_s}, {u"editor"_s, u"Open the editor"_s},
            {u"none"_s, u"Do nothing"_s}});

    page.addGroup(u"History"_s);
    page.addSwitch(keys.historyEnabled, {u"Keep a history of captures"_s});
    QList<SettingsPage::Choice> sizes;
    for (const int size : {50, 200, 500, 1000, 5000})
        sizes << SettingsPage::Choice {size, entries(size)};
    page.addChoice(keys.historyMax,
        {u"At most"_s, u"The oldest go first. Your saved files stay."_s}, sizes, entries);
    page.addSwitch(keys.keepEditsEditable,
        {u"Keep edits editable"_s,
            u"Drawings can be changed later. What they cover stays on disk."_s});
    page.addSwitch(keys.findByText,
        {u"Find captures by their text"_s,
            u"Reads the text in captures, on this computer only."_s});

    addStartAtLogin(page, page.addGroup(), means);
}
