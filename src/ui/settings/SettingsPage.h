// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Prefs.h"
#include "widgets/RowGroup.h"

#include <QScrollArea>

class QComboBox;
class QSlider;
class QVBoxLayout;
class Switch;

/// One page of the settings: groups of rows. A row that is bound to a preference shows what it is,
/// whoever sets it, and sets it.
class SettingsPage final : public QScrollArea {
    Q_OBJECT

public:
    /// One of several values of a preference, and how it is called.
    struct Choice {
        QVariant value;
        QString title;
    };
    /// How a value is called that is none of the choices.
    using Naming = std::function<QString(const QVariant&)>;

    SettingsPage(const Themes& themes, Prefs& prefs, const QString& title);

    RowGroup& addGroup(const QString& heading = {});
    void addBelow(QWidget* content); ///< Below the groups that there are. Takes it over.

    // To the last group.
    Switch* addSwitch(const PrefKey<bool>& key, const RowText& text);
    QComboBox* addChoice(const AnyPrefKey& key, const RowText& text, const QList<Choice>& choices,
        const Naming& naming = &QVariant::toString);

    // The bound control alone, without a parent, for a row that has more of them.
    QComboBox* choice(const AnyPrefKey& key, const QList<Choice>& choices,
        const Naming& naming = &QVariant::toString);
    QSlider* slider(const PrefKey<double>& key); ///< From 0 to 1.

    /// Calls it now and whenever a preference may have changed.
    void follow(const AnyPrefKey& key, std::function<void()> show);

    Prefs& prefs() const { return m_prefs; }
    const Themes& themes() const { return m_themes; }

private:
    const Themes& m_themes;
    Prefs& m_prefs;
    QVBoxLayout* m_column;
    RowGroup* m_group = nullptr;
};
