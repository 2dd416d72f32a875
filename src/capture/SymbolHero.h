// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Theme.h"

#include <QVariantAnimation>
#include <QWidget>

/// One large symbol on discs in tones of the accent, for windows that say one thing. Another
/// symbol pops up in place of the one before.
class SymbolHero final : public QWidget {
    Q_OBJECT

public:
    explicit SymbolHero(const Themes& themes, QWidget* parent = nullptr);

    void setSymbol(const QString& symbol);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Themes& m_themes;
    QString m_symbol;
    QVariantAnimation m_popUp; ///< 0 to 1, with some overshoot.
};
