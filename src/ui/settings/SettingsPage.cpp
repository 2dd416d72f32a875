// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "ui/settings/SettingsPage.h"

#include "widgets/Switch.h"
#include "widgets/TextLabel.h"

#include <QComboBox>
#include <QSlider>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

SettingsPage::SettingsPage(const Themes& themes, Prefs& prefs, const QString& title)
    : m_themes(themes)
    , m_prefs(prefs)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus); // Its controls have it.
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* content = new QWidget;
    m_column = new QVBoxLayout(content);
    m_column->setContentsMargins(Space::window, Space::window, Space::window, Space::window);
    m_column->setSpacing(Space::group);
    auto* heading = new TextLabel(m_themes, TextStyle::Title2);
    heading->setText(title);
    m_column->addWidget(heading);
    m_column->addStretch();
    setWidget(content);
}

RowGroup& SettingsPage::addGroup(const QString& heading)
{
    m_group = new RowGroup(m_themes, heading);
    addBelow(m_group);
    return *m_group;
}

void SettingsPage::addBelow(QWidget* content)
{
    m_column->insertWidget(m_column->count() - 1, content); // Before the stretch.
}

void SettingsPage::follow(const AnyPrefKey& key, std::function<void()> show)
{
    show();
    connect(&m_prefs, &Prefs::changed, this,
        [name = QLatin1String(key.name), show = std::move(show)](const QString& changed) {
            if (changed == name)
                show();
        });
}

Switch* SettingsPage::addSwitch(const PrefKey<bool>& key, const RowText& text)
{
    auto* control = new Switch(m_themes);
    m_group->addRow(text, control);
    follow(key, [this, control, &key] { control->setChecked(m_prefs.get(key)); });
    connect(control, &QAbstractButton::clicked, this,
        [this, &key](bool isOn) { m_prefs.set(key, isOn); });
    return control;
}

QComboBox* SettingsPage::addChoice(
    const AnyPrefKey& key, const RowText& text, const QList<Choice>& choices, const Naming& naming)
{
    auto* control = choice(key, choices, naming);
    m_group->addRow(text, control);
    return control;
}

QComboBox* SettingsPage::choice(
    const AnyPrefKey& key, const QList<Choice>& choices, const Naming& naming)
{
    auto* control = new QComboBox;
    for (const Choice& each : choices)
        control->addItem(each.title, each.value);
    follow(key, [this, control, naming, &key] {
        const QVariant value = m_prefs.value(key);
        if (control->findData(value) < 0)
            control->addItem(naming(value), value);
        control->setCurrentIndex(control->findData(value));
    });
    connect(control, &QComboBox::activated, this, [this, control, &key](int index) {
        std::ignore = m_prefs.setValue(key, control->itemData(index)); // Of the key's own type.
    });
    return control;
}

QSlider* SettingsPage::slider(const PrefKey<double>& key)
{
    constexpr int steps = 100;
    auto* control = new QSlider(Qt::Horizontal);
    control->setRange(0, steps);
    control->setPageStep(10);
    follow(key, [this, control, &key] {
        if (!control->isSliderDown()) // Or rounding would pull at the knob.
            control->setValue(qRound(m_prefs.get(key) * steps));
    });
    connect(control, &QSlider::actionTriggered, this,
        [this, control, &key] { m_prefs.set(key, double(control->sliderPosition()) / steps); });
    return control;
}
