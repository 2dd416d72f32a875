// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "ui/settings/SettingsPages.h"

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
    auto* question = new QMessageBox(QMessageBox::NoIcon, u"Reset"_s,
        u"Reset all achievements, streaks and your pet's level?"_s, QMessageBox::Cancel, asking);
    question->setAttribute(Qt::WA_DeleteOnClose);
    question->setDefaultButton(QMessageBox::Cancel);
    auto* reset = question->addButton(u"Reset"_s, QMessageBox::DestructiveRole);
    QObject::connect(reset, &QAbstractButton::clicked, &fun, &Fun::reset);
    question->open();
}

} // namespace

void SettingsPages::fillFun(SettingsPage& page, const SettingsMeans& means)
{
    RowGroup& skins = page.addGroup(u"Skin"_s);
    skins.addContent(new SkinPicker(means.themes, means.prefs, means.skins, means.sounds));
    skins.setFooter(u"A skin sets the colours, preview effect, capture sound and animation in one "
                    "go. Pick macOS to go back to your system look."_s);

    RowGroup& pet = page.addGroup(u"Pet"_s);
    pet.addRow({u"Name"_s}, petName(means.fun));
    page.addSwitch(keys.trayPet, {u"Show the pet in the tray"_s});
    page.addSwitch(keys.achievementToasts, {u"Tell about achievements and new levels"_s});

    RowGroup& stats = page.addGroup(u"Statistics"_s);
    stats.addContent(new StatsView(means.themes, means.fun));
    stats.addRow({u"Start over"_s, u"Your pet keeps its name."_s},
        button(u"Reset…"_s, [&page, &means] { askForReset(&page, means.fun); }));
}
