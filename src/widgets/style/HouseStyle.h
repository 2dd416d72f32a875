// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/style/MenuStyle.h"

#include <QProxyStyle>

/// Makes the toolkit's ordinary widgets look like the rest of the surfaces, in the colours of a
/// theme. It decides nothing about looks itself: each family of controls beside it does. Whoever
/// changes the theme has the widgets painted anew.
class HouseStyle final : public QProxyStyle {
    Q_OBJECT

public:
    HouseStyle(const Theme& theme, MenuStyle::Corners corners);

    /// @param corners of menus and tooltips that are opened from now on
    void wear(const Theme& theme, MenuStyle::Corners corners);

    void polish(QWidget* widget) override;
    void polish(QPalette& palette) override { palette = m_theme.palette(); }
    using QProxyStyle::polish;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
        const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
        const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
        QPainter* painter, const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
        const QWidget* widget) const override;
    QRect subElementRect(
        SubElement element, const QStyleOption* option, const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
        const QWidget* widget) const override;
    int pixelMetric(
        PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
        QStyleHintReturn* returned) const override;

private:
    bool paintPrimitive(PrimitiveElement element, const QStyleOption& option, QPainter& painter,
        const QWidget* widget) const;
    bool paintControl(ControlElement element, const QStyleOption& option, QPainter& painter,
        const QWidget* widget) const;

    Theme m_theme;
    MenuStyle::Corners m_corners;
};
