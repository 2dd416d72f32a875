// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "fun/Fun.h"
#include "widgets/Tile.h"

class GlassButton;
class QLineEdit;
class QStackedLayout;
class TextLabel;

/// The pet: how it looks and what it is called, how far it has come and what it was fed with.
class PetCard final : public Tile {
    Q_OBJECT

public:
    PetCard(const Themes& themes, Fun& fun, QWidget* parent = nullptr);

    void refresh(); ///< From what has been counted.

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLayout* nameRow();
    QLayout* numbers();
    void beginRenaming();
    void endRenaming(bool keeps);
    void paintLevel(QPainter& painter) const;
    void paintStages(QPainter& painter) const;

    Fun& m_fun;
    QWidget* m_portrait; ///< The places of what is painted.
    QWidget* m_level;
    QWidget* m_stages;
    QWidget* m_shownName;
    TextLabel* m_name;
    GlassButton* m_rename;
    QLineEdit* m_edited;
    QStackedLayout* m_names;
    TextLabel* m_stage;
    TextLabel* m_next;
    QList<TextLabel*> m_numbers;
};
