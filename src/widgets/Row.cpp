// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/Row.h"

#include "widgets/Accessible.h"
#include "widgets/SymbolLabel.h"
#include "widgets/TextLabel.h"

#include <QComboBox>
#include <QHBoxLayout>

namespace {

constexpr int least = 40; // Points high.

} // namespace

Row::Row(const Themes& themes, const RowText& text, QWidget* control)
    : m_control(control && control->focusProxy() ? control->focusProxy() : control)
    , m_label(new TextLabel(themes, TextStyle::Body))
    , m_explanation(new TextLabel(
          themes, TextStyle::Caption, TextLabel::Role::Secondary, TextLabel::Lines::Wrapped))
{
    setMinimumHeight(least);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(Space::group, Space::related - 2, Space::group, Space::related - 2);
    row->setSpacing(Space::inner);
    if (!text.symbol.isEmpty())
        row->addWidget(new SymbolLabel(themes, text.symbol));
    auto* words = new QVBoxLayout;
    words->setSpacing(1);
    words->addStretch();
    words->addWidget(m_label);
    words->addWidget(m_explanation);
    words->addStretch();
    row->addLayout(words, 1);
    if (control)
        row->addWidget(control, 0, Qt::AlignVCenter);
    setLabel(text.label);
    setExplanation(text.explanation);
}

void Row::setLabel(const QString& text)
{
    m_label->setText(text);
    if (auto* choice = qobject_cast<QComboBox*>(m_control))
        Accessible::label(*choice, text);
    else if (m_control)
        m_control->setAccessibleName(text);
}

void Row::setExplanation(const QString& text)
{
    m_explanation->setText(text);
    m_explanation->setVisible(!text.isEmpty());
    if (m_control)
        m_control->setAccessibleDescription(text);
}
