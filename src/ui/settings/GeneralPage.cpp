// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "ui/settings/SettingsPages.h"

#include "base/Words.h"
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
    auto* row = tile.addRow({Words::tr("Start at login")}, control);
    control->setChecked(means.workspace.startsAtLogin());
    QObject::connect(control, &QAbstractButton::clicked, row, [control, row, &means](bool isOn) {
        const auto done = means.workspace.setStartsAtLogin(isOn);
        row->setExplanation(done ? QString() : done.error().message);
        control->setChecked(means.workspace.startsAtLogin());
    });
}

QString entries(const QVariant& number)
{
    return Words::tr("%n captures", nullptr, number.toInt());
}

} // namespace

void SettingsPages::fillGeneral(SettingsPage& page, const SettingsMeans& means)
{
    RowGroup& saving = page.addGroup(Words::tr("Saving"));
    page.addSwitch(keys.autoSave, {Words::tr("Save every capture")});
    saving.addRow({Words::tr("Folder")}, new SaveFolderControl(page.themes(), page.prefs()));
    page.addChoice(keys.imageFormat, {Words::tr("Format")},
        {{u"png"_s, u"PNG"_s}, {u"jpg"_s, u"JPEG"_s}}, [](const QVariant&) { return u"PNG"_s; });
    page.addSwitch(keys.copyToClipboard, {Words::tr("Copy every capture")});

    page.addGroup();
    page.addChoice(keys.afterCapture, {Words::tr("After a capture")},
        {{u"preview"_s, Words::tr("Show a preview")}, {u"editor"_s, Words::tr("Open the editor")},
            {u"none"_s, Words::tr("Do nothing")}});

    page.addGroup(Words::tr("History"));
    page.addSwitch(keys.historyEnabled, {Words::tr("Keep a history of captures")});
    QList<SettingsPage::Choice> sizes;
    for (const int size : {50, 200, 500, 1000, 5000})
        sizes << SettingsPage::Choice {size, entries(size)};
    page.addChoice(keys.historyMax,
        {Words::tr("At most"), Words::tr("The oldest go first. Your saved files stay.")}, sizes,
        entries);
    page.addSwitch(keys.keepEditsEditable,
        {Words::tr("Keep edits editable"),
            Words::tr("Drawings can be changed later. What they cover stays on disk.")});
    page.addSwitch(keys.findByText,
        {Words::tr("Find captures by their text"),
            Words::tr("Reads the text in captures, on this computer only.")});

    addStartAtLogin(page, page.addGroup(), means);
}
