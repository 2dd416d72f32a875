// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/Switch.h"

#include "widgets/Motion.h"
#include "widgets/style/CheckStyle.h"

#include <QPainter>
#include <QStyleOptionButton>

Switch::Switch(const Themes& themes, QWidget* parent)
    : QCheckBox(parent)
    , m_themes(themes)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_on.setDuration(int(Motion::hover.count()));
    m_on.setStartValue(0.0);
    m_on.setEndValue(1.0);
    m_on.setCurrentTime(0);
    connect(&m_on, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
    connect(this, &QAbstractButton::toggled, this, &Switch::move);
}

QSize Switch::sizeHint() const
{
    return CheckStyle::switchSize;
}

void Switch::move()
{
    m_on.setDirection(isChecked() ? QAbstractAnimation::Forward : QAbstractAnimation::Backward);
    if (isVisible() && !m_themes.current().reducedMotion) {
        m_on.start();
        return;
    }
    m_on.stop();
    m_on.setCurrentTime(isChecked() ? m_on.duration() : 0);
    update();
}

void Switch::paintEvent(QPaintEvent*)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    QPainter painter(this);
    CheckStyle::paintSwitch(painter, option, m_themes.current(), m_on.currentValue().toDouble());
}
