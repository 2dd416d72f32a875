// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/EditorNotice.h"

#include "widgets/Accessible.h"
#include "widgets/GlassButton.h"
#include "widgets/Icons.h"
#include "widgets/TextLabel.h"

#include <QHBoxLayout>
#include <QPainter>

using namespace Qt::StringLiterals;

EditorNotice::EditorNotice(const Themes& themes, QWidget* parent)
    : QWidget(parent)
    , m_themes(themes)
    , m_reason(
          new TextLabel(themes, TextStyle::Body, TextLabel::Role::Text, TextLabel::Lines::Wrapped))
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(
        2 * Space::group + Extent::symbol, Space::tiny, Space::related, Space::tiny + 1);
    row->setSpacing(Space::tiny);
    row->addWidget(m_reason, 1);
    const auto add = [&](const QString& text, auto signal) {
        auto* button = GlassButton::ofText(themes, text);
        connect(button, &QAbstractButton::clicked, this, signal);
        row->addWidget(button);
    };
    add(u"Try Again"_s, &EditorNotice::retryChosen);
    add(u"Save As…"_s, &EditorNotice::saveElsewhereChosen);
    add(u"Discard Edit"_s, &EditorNotice::discardChosen);
    connect(&themes, &Themes::changed, this, qOverload<>(&QWidget::update));
    hide();
}

void EditorNotice::tell(const QString& reason)
{
    m_reason->setText(u"Not closed, as the edit could not be kept: "_s + reason);
    setAccessibleName(m_reason->text());
    show();
    Accessible::announce(*this);
}

void EditorNotice::paintEvent(QPaintEvent*)
{
    const Theme& theme = m_themes.current();
    QPainter painter(this);
    painter.fillRect(rect(), theme.sidebar);
    painter.fillRect(0, height() - 1, width(), 1, theme.hairline);
    const QRectF box(Space::group, 0, Extent::symbol, height());
    Icons::paint(painter, u"exclamationmark.triangle.fill"_s, box, Extent::symbol, theme.failure);
}
