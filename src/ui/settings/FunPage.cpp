// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "ui/settings/SettingsPages.h"

#include "base/Words.h"
#include "ui/settings/SkinPicker.h"
#include "ui/settings/StatsView.h"

#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr const PrefKeys& keys = Prefs::keys;

QLineEdit* petName(Fun& fun)
{
    constexpr int width = 180; // Points.
    auto* name = new QLineEdit(fun.stats().petName);
    name->setFixedWidth(width);
    QObject::connect(name, &QLineEdit::editingFinished, name, [name, &fun] {
        fun.rename(name->text());
        name->setText(fun.stats().petName); // As it was taken.
    });
    QObject::connect(&fun, &Fun::statsChanged, name, [name, &fun] {
        if (!name->hasFocus())
            name->setText(fun.stats().petName);
    });
    return name;
}

void askForReset(QWidget* asking, Fun& fun)
{
    auto* question = new QMessageBox(QMessageBox::NoIcon, Words::tr("Reset"),
        Words::tr("Reset all achievements, streaks and your pet's level?"), QMessageBox::Cancel,
        asking);
    question->setAttribute(Qt::WA_DeleteOnClose);
    question->setDefaultButton(QMessageBox::Cancel);
    auto* reset = question->addButton(Words::tr("Reset"), QMessageBox::DestructiveRole);
    QObject::connect(reset, &QAbstractButton::clicked, &fun, &Fun::reset);
    question->open();
}

} // namespace

void SettingsPages::fillFun(SettingsPage& page, const SettingsMeans& means)
{
    RowGroup& skins = page.addGroup(Words::tr("Skin"));
    skins.addContent(new SkinPicker(means.themes, means.prefs, means.skins, means.sounds));
    skins.setFooter(
        Words::tr("A skin sets the colours, preview effect, capture sound and animation in one "
                  "go. Pick macOS to go back to your system look."));

    RowGroup& pet = page.addGroup(Words::tr("Pet"));
    pet.addRow({Words::tr("Name")}, petName(means.fun));
    page.addSwitch(keys.trayPet, {Words::tr("Show the pet in the tray")});
    page.addSwitch(keys.achievementToasts, {Words::tr("Tell about achievements and new levels")});

    RowGroup& stats = page.addGroup(Words::tr("Statistics"));
    stats.addContent(new StatsView(means.themes, means.fun));
    stats.addRow({Words::tr("Start over"), Words::tr("Your pet keeps its name.")},
        button(Words::tr("Reset…"), [&page, &means] { askForReset(&page, means.fun); }));
}
