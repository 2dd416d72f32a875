// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/TextLabel.h"

#include "widgets/Mirrored.h"

#include <QPainter>

TextLabel::TextLabel(const Themes& themes, TextStyle style, Role role, Lines lines, QWidget* parent)
    : QLabel(parent)
    , m_themes(themes)
    , m_style(style)
    , m_role(role)
{
    setTextFormat(Qt::PlainText);
    setAlignment(startSide() | Qt::AlignVCenter);
    setWordWrap(lines == Lines::Wrapped);
    adoptTheme();
    connect(&m_themes, &Themes::changed, this, &TextLabel::adoptTheme);
}

QSize TextLabel::minimumSizeHint() const
{
    if (wordWrap())
        return QLabel::minimumSizeHint();
    return {0, QLabel::minimumSizeHint().height()};
}

/// A layout asks for all the room that there is, also where the label takes less.
int TextLabel::heightForWidth(int width) const
{
    return QLabel::heightForWidth(std::min(width, maximumWidth()));
}

void TextLabel::adoptTheme()
{
    const Theme& theme = m_themes.current();
    QPalette colours = palette();
    colours.setColor(QPalette::WindowText, m_role == Role::Text ? theme.text : theme.secondary);
    setPalette(colours);
    setFont(theme.font(m_style));
}

void TextLabel::paintEvent(QPaintEvent* event)
{
    if (wordWrap()) {
        QLabel::paintEvent(event);
        return;
    }
    const QString fitting
        = fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
    setToolTip(fitting == text() ? QString() : text());
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(contentsRect(), int(alignment()), fitting);
}
