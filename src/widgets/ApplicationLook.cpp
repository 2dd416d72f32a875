// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/ApplicationLook.h"

#include <QApplication>
#include <QStyleFactory>

using namespace Qt::StringLiterals;

ApplicationLook::ApplicationLook(const Themes& themes)
    : m_themes(themes)
{
    QApplication::setStyle(
        QStyleFactory::create(u"Fusion"_s)); // It takes all colours from palettes.
    connect(&m_themes, &Themes::changed, this, &ApplicationLook::adopt);
    adopt();
}

void ApplicationLook::adopt()
{
    const Theme& theme = m_themes.current();
    QApplication::setPalette(theme.palette());
    QApplication::setFont(theme.font(TextStyle::Body), "QMenu");
    QApplication::setFont(theme.font(TextStyle::Callout), "QTipLabel");
}
