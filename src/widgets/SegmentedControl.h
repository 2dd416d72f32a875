// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Theme.h"

#include <QWidget>

class QAbstractButton;

/// Several choices side by side on one ground. Either one of them is chosen and filled with the
/// accent, or each is a button of its own. The arrow keys go from one to the next.
class SegmentedControl final : public QWidget {
    Q_OBJECT

public:
    /// Shows the symbol, or the text where there is none. What it says aloud is its help, else its
    /// text.
    struct Segment {
        QString symbol {};
        QString text {};
        QString help {};
    };
    enum class Mode { ChooseOne, Press };

    /// @param name for screen readers
    SegmentedControl(const Themes& themes, const QString& name, const QList<Segment>& segments,
        Mode mode = Mode::ChooseOne, QWidget* parent = nullptr);

    int current() const; ///< -1 where none is chosen.
    void setCurrent(int index); ///< Tells nobody.

Q_SIGNALS:
    void chosen(int index); ///< By the user, also if it was chosen before.

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Themes& m_themes;
    QList<QAbstractButton*> m_buttons;
};
