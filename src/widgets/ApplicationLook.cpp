// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/ApplicationLook.h"

#include "widgets/Accessible.h"
#include "widgets/style/HouseStyle.h"

#include <QApplication>
#include <QStyleFactory>

using namespace Qt::StringLiterals;

namespace {

MenuStyle::Corners corners(const SurfaceTraits& surfaces)
{
    return surfaces.blendsWindows() ? MenuStyle::Corners::Round : MenuStyle::Corners::Cut;
}

/// None of them is a kind of another, for the toolkit takes the letters of any kind that fits. A
/// tooltip is a label, but its exact kind goes before.
void setLetters(const Theme& theme)
{
    const QFont body = theme.font(TextStyle::Body);
    for (const char* kind : {"QMenu", "QMenuBar", "QToolButton", "QCheckBox", "QRadioButton",
             "QComboBox", "QLineEdit", "QAbstractSpinBox", "QAbstractItemView", "QLabel",
             "QTextEdit", "QPlainTextEdit", "QTabBar", "QProgressBar"})
        QApplication::setFont(body, kind);
    QApplication::setFont(theme.font(TextStyle::Headline), "QPushButton");
    QApplication::setFont(theme.font(TextStyle::Callout), "QTipLabel");
}

} // namespace

ApplicationLook::ApplicationLook(const Surroundings& surroundings)
    : m_surroundings(surroundings)
    , m_style(new HouseStyle(surroundings.themes.current(), corners(surroundings.surfaces)))
{
    Accessible::install();
    QApplication::setStyle(m_style);
    connect(&m_surroundings.themes, &Themes::changed, this, &ApplicationLook::adopt);
    connect(
        &m_surroundings.surfaces, &SurfaceTraits::blendingChanged, this, &ApplicationLook::adopt);
    adopt();
}

ApplicationLook::~ApplicationLook()
{
    QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
}

void ApplicationLook::adopt()
{
    const Theme& theme = m_surroundings.themes.current();
    m_style->wear(theme, corners(m_surroundings.surfaces));
    QApplication::setPalette(theme.palette());
    setLetters(theme);
    if (theme.reducedMotion) // Some desktops ask for them.
        for (const auto effect : {Qt::UI_AnimateMenu, Qt::UI_FadeMenu, Qt::UI_AnimateCombo,
                 Qt::UI_AnimateTooltip, Qt::UI_FadeTooltip})
            QApplication::setEffectEnabled(effect, false);
    for (QWidget* widget : QApplication::allWidgets())
        widget->update(); // A palette that stayed the same repaints nothing.
}
