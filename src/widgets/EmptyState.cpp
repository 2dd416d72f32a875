// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/EmptyState.h"

#include "widgets/Enlarged.h"
#include "widgets/GlassButton.h"
#include "widgets/Icons.h"
#include "widgets/TextLabel.h"

#include <QPainter>
#include <QVBoxLayout>

namespace {

constexpr int symbolSize = 48;
constexpr int lineWidth = 360; // Points; lines of a length that is read at a glance.

} // namespace

EmptyState::EmptyState(const Themes& themes, const Content& content, QWidget* parent)
    : QWidget(parent)
    , m_themes(themes)
    , m_symbol(content.symbol)
    , m_place(new QWidget)
    , m_text(new TextLabel(
          themes, TextStyle::Body, TextLabel::Role::Secondary, TextLabel::Lines::Wrapped))
{
    m_place->setFixedSize(symbolSize, symbolSize);
    auto* title = new TextLabel(themes, TextStyle::Title2);
    title->setText(content.title);
    title->setAlignment(Qt::AlignCenter);
    m_text->setText(content.text);
    m_text->setAlignment(Qt::AlignCenter);
    m_text->setFixedWidth(enlarged(lineWidth, themes.current()));
    auto* column = new QVBoxLayout(this);
    column->setSpacing(Space::related);
    column->addStretch(2);
    column->addWidget(m_place, 0, Qt::AlignHCenter);
    column->addSpacing(Space::tiny);
    column->addWidget(title);
    column->addWidget(m_text, 0, Qt::AlignHCenter);
    if (!content.action.isEmpty()) {
        auto* button = GlassButton::ofText(themes, content.action, GlassButton::Look::Prominent);
        connect(button, &QAbstractButton::clicked, this, &EmptyState::actionWanted);
        column->addSpacing(Space::related);
        column->addWidget(button, 0, Qt::AlignHCenter);
    }
    column->addStretch(3); // The eye rests above the middle.
    connect(&themes, &Themes::changed, this, qOverload<>(&QWidget::update));
}

void EmptyState::setText(const QString& text)
{
    m_text->setText(text);
}

void EmptyState::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    Icons::paint(painter, m_symbol, m_place->geometry(), symbolSize, m_themes.current().secondary);
}
