// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "ui/settings/SettingsPages.h"

#include "base/Words.h"

#include <QHBoxLayout>
#include <QPushButton>

using namespace Qt::StringLiterals;

QString SettingsPages::secondsTitle(const QVariant& number)
{
    const int seconds = number.toInt();
    return seconds == 1 ? Words::tr("1 second") : Words::tr("%n seconds", nullptr, seconds);
}

QList<SettingsPage::Choice> SettingsPages::seconds(const QList<int>& numbers, const QString& zero)
{
    QList<SettingsPage::Choice> choices;
    for (const int number : numbers)
        choices << SettingsPage::Choice {number, number == 0 ? zero : secondsTitle(number)};
    return choices;
}

QPushButton* SettingsPages::button(const QString& text, const std::function<void()>& clicked)
{
    auto* button = new QPushButton(text);
    button->setAutoDefault(false);
    QObject::connect(button, &QPushButton::clicked, button, clicked);
    return button;
}

QWidget* SettingsPages::beside(const QList<QWidget*>& controls)
{
    auto* both = new QWidget;
    auto* row = new QHBoxLayout(both);
    row->setContentsMargins({});
    row->setSpacing(Space::related);
    for (QWidget* control : controls)
        row->addWidget(control);
    both->setFocusProxy(controls.first());
    return both;
}
