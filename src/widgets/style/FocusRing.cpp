// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/style/FocusRing.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QToolButton>

namespace {

constexpr const char* wanted = "wantsFocusRing";

bool needsRing(const QWidget* widget)
{
    if (widget && widget->property(wanted).toBool())
        return true;
    const auto* choice = qobject_cast<const QComboBox*>(widget);
    return (choice && !choice->isEditable()) || qobject_cast<const QPushButton*>(widget)
        || qobject_cast<const QToolButton*>(widget) || qobject_cast<const QCheckBox*>(widget)
        || qobject_cast<const QRadioButton*>(widget) || qobject_cast<const QSlider*>(widget);
}

} // namespace

FocusRing::FocusRing()
{
    connect(qApp, &QApplication::focusChanged, this,
        [this](QWidget*, QWidget* focused) { follow(focused); });
}

void FocusRing::wantedBy(QWidget& widget)
{
    widget.setProperty(wanted, true);
}

FocusRing::~FocusRing()
{
    delete m_frame;
}

void FocusRing::follow(QWidget* focused)
{
    const bool isClicked = QGuiApplication::mouseButtons() != Qt::NoButton;
    if (isClicked || !needsRing(focused)) {
        if (m_frame)
            m_frame->setWidget(nullptr);
        return;
    }
    if (!m_frame)
        m_frame = new QFocusFrame(focused->window());
    m_frame->setWidget(focused);
}
