// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/EditorNotice.h"

#include "widgets/Accessible.h"
#include "widgets/GlassButton.h"
#include "widgets/Icons.h"
#include "widgets/Mirrored.h"
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
    row->setContentsMargins(mirrored(
        QMargins(2 * Space::group + Extent::symbol, Space::tiny, Space::related, Space::tiny + 1),
        *this));
    row->setSpacing(Space::tiny);
    row->addWidget(m_reason, 1);
    const auto add = [&](const QString& text, auto signal) {
        auto* button = GlassButton::ofText(themes, text);
        connect(button, &QAbstractButton::clicked, this, signal);
        row->addWidget(button);
    };
    add(tr("Try Again"), &EditorNotice::retryChosen);
    add(tr("Save As…"), &EditorNotice::saveElsewhereChosen);
    add(tr("Discard Edit"), &EditorNotice::discardChosen);
    connect(&themes, &Themes::changed, this, qOverload<>(&QWidget::update));
    hide();
}

void EditorNotice::tell(const QString& reason)
{
    m_reason->setText(tr("Not closed, as the edit could not be kept: %1").arg(reason));
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
    const QRectF box = mirrored(QRectF(Space::group, 0, Extent::symbol, height()), *this);
    Icons::paint(painter, u"exclamationmark.triangle.fill"_s, box, Extent::symbol, theme.failure);
}
