// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/MemeDialog.h"

#include "widgets/GlassButton.h"
#include "widgets/TextLabel.h"

#include <QLineEdit>
#include <QVBoxLayout>

namespace {

constexpr int fieldWidth = 320; // Points.

QLineEdit* addField(QVBoxLayout& column, const Themes& themes, const QString& name)
{
    auto* label = new TextLabel(themes, TextStyle::Headline);
    label->setText(name);
    auto* field = new QLineEdit;
    field->setAccessibleName(name);
    field->setMinimumWidth(fieldWidth);
    field->setMinimumHeight(Extent::control);
    label->setBuddy(field);
    column.addWidget(label);
    column.addWidget(field);
    column.addSpacing(Space::tiny);
    return field;
}

} // namespace

MemeDialog::MemeDialog(const Themes& themes, QWidget* parent)
    : QDialog(parent)
{
    setWindowTitle(tr("Meme caption"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Space::window, Space::window, Space::window, Space::window);
    column->setSpacing(Space::related);
    column->setSizeConstraint(QLayout::SetFixedSize);
    m_top = addField(*column, themes, tr("Meme — top text"));
    m_bottom = addField(*column, themes, tr("Meme — bottom text"));
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    auto* cancel = GlassButton::ofText(themes, tr("Cancel"));
    auto* add = GlassButton::ofText(themes, tr("Add"), GlassButton::Look::Prominent);
    buttons->addWidget(cancel);
    buttons->addWidget(add);
    column->addLayout(buttons);
    connect(cancel, &QAbstractButton::clicked, this, &QDialog::reject);
    connect(add, &QAbstractButton::clicked, this, &QDialog::accept);
    // As if asked one after the other.
    connect(m_top, &QLineEdit::returnPressed, m_bottom, qOverload<>(&QWidget::setFocus));
    connect(m_bottom, &QLineEdit::returnPressed, this, &QDialog::accept);
    connect(this, &QDialog::accepted, this, [this] {
        const QString top = m_top->text().trimmed(), bottom = m_bottom->text().trimmed();
        if (!top.isEmpty() || !bottom.isEmpty())
            Q_EMIT captioned(top, bottom);
    });
}
