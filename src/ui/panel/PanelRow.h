// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Theme.h"

#include <QAbstractButton>

/// A row of the panel: symbol, title, and at the right what belongs to it, such as a shortcut. The
/// pointer gives it the focus, so that one row is lit whether the mouse or the keys chose it.
class PanelRow final : public QAbstractButton {
    Q_OBJECT

public:
    enum class Look {
        Plain,
        Prominent, ///< On the accent: something waits to be done.
    };

    PanelRow(const Themes& themes, QString symbol, Look look = Look::Plain);

    void setTitle(const QString& title);
    void setDetail(const QString& detail); ///< Behind the title, secondary.
    /// @param words how it is called in words, for screen readers
    void setShortcut(const QString& glyphs, const QString& words);
    void setHeight(int points);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void describe();

    const Themes& m_themes;
    const QString m_symbol;
    const Look m_look;
    QString m_detail, m_shortcut, m_words;
    int m_height = 36;
};
