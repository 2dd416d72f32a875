// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Theme.h"

#include <QAbstractButton>
#include <QVariantAnimation>

/// The button of all our surfaces: a symbol, a text, or both, on a ground that shows hover, press
/// and focus. What it says aloud is its tooltip, where it shows only a symbol.
class GlassButton : public QAbstractButton {
    Q_OBJECT

public:
    enum class Look {
        Plain, ///< No ground until hovered.
        Glass,
        Prominent, ///< On the accent; at most one of a surface.
    };

    explicit GlassButton(const Themes& themes, Look look = Look::Glass, QWidget* parent = nullptr);

    /// With a symbol only. @param help what the button does, in a tooltip and for screen readers
    static GlassButton* ofSymbol(
        const Themes& themes, const QString& symbol, const QString& help, Look look = Look::Glass);
    static GlassButton* ofText(const Themes& themes, const QString& text, Look look = Look::Glass);

    void setSymbol(const QString& symbol);
    QString symbol() const { return m_symbol; }
    /// Points; square controls default to 34 × 28.
    void setSymbolExtent(QSize extent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    int symbolExtent() const; ///< Points.
    QColor ground() const;
    QColor ink() const;

    const Themes& m_themes;
    const Look m_look;
    QString m_symbol;
    QSize m_extent {34, Extent::control};
    QVariantAnimation m_hover; ///< 0 to 1.
};
