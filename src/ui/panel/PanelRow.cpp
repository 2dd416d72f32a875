// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "ui/panel/PanelRow.h"

#include "widgets/Enlarged.h"
#include "widgets/Icons.h"
#include "widgets/style/StyleTools.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOption>

using namespace Qt::StringLiterals;

namespace {

constexpr int symbolSize = 18; // Points.

} // namespace

PanelRow::PanelRow(const Themes& themes, QString symbol, Look look)
    : m_themes(themes)
    , m_symbol(std::move(symbol))
    , m_look(look)
{
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(&m_themes, &Themes::changed, this, qOverload<>(&QWidget::update));
}

void PanelRow::setTitle(const QString& title)
{
    setText(title);
    describe();
}

void PanelRow::setDetail(const QString& detail)
{
    m_detail = detail;
    describe();
}

void PanelRow::setShortcut(const QString& glyphs, const QString& words)
{
    m_shortcut = glyphs;
    m_words = words;
    describe();
}

void PanelRow::setHeight(int points)
{
    m_height = points;
    updateGeometry();
}

void PanelRow::describe()
{
    QStringList parts {text()};
    for (const QString& part : {m_detail, m_words})
        if (!part.isEmpty())
            parts << part;
    setAccessibleName(parts.join(u", "_s));
    setToolTip(m_words);
    update();
}

QSize PanelRow::sizeHint() const
{
    const int letters = m_themes.current().lineHeight(TextStyle::Body) + Space::inner;
    return {0, std::max(m_height, letters)};
}

void PanelRow::paintEvent(QPaintEvent*)
{
    const Theme& theme = m_themes.current();
    QStyleOption option;
    option.initFrom(this);
    QPainter painter(this);
    const StyleTools::Stroke stroke(painter, option.state);
    const bool isProminent = m_look == Look::Prominent;
    const bool isLit = hasFocus() && isEnabled();
    QColor ground = isProminent ? theme.accent : QColor(Qt::transparent);
    if (isDown())
        ground = isProminent ? theme.accentPressed : theme.fillPressed;
    else if (isLit)
        ground = isProminent ? theme.accentHover : theme.fillHover;
    StyleTools::paintBox(painter, rect(), Radius::thumbnail, ground);

    const QColor ink = isProminent ? theme.onAccent : theme.text;
    const QColor secondary = isProminent ? theme.onAccent : theme.secondary;
    QRect box = rect().adjusted(Space::inner, 0, -Space::inner, 0);
    const auto take = [&](int width) {
        const QRect part = StyleTools::atStart(option, box, width);
        box = StyleTools::atEnd(option, box, std::max(0, box.width() - width - Space::related));
        return part;
    };
    const int symbol = enlarged(symbolSize, theme);
    Icons::paint(painter, m_symbol, take(symbol), symbol, ink);
    const int start = int(QStyle::visualAlignment(option.direction, Qt::AlignLeft));
    const int end = int(QStyle::visualAlignment(option.direction, Qt::AlignRight));

    painter.setFont(theme.font(TextStyle::Callout));
    const int trailing = painter.fontMetrics().horizontalAdvance(m_shortcut);
    painter.setPen(secondary);
    if (trailing) {
        painter.drawText(box, end | Qt::AlignVCenter, m_shortcut);
        box = StyleTools::atStart(option, box, box.width() - trailing - Space::related);
    }
    painter.setFont(theme.font(TextStyle::Body));
    const QFontMetrics metrics(painter.font());
    const QString title = metrics.elidedText(text(), Qt::ElideRight, box.width());
    painter.setPen(ink);
    painter.drawText(take(metrics.horizontalAdvance(title)), start | Qt::AlignVCenter, title);
    painter.setPen(secondary);
    painter.setFont(theme.font(TextStyle::Callout));
    painter.drawText(box, start | Qt::AlignVCenter,
        painter.fontMetrics().elidedText(m_detail, Qt::ElideRight, box.width()));
}

void PanelRow::enterEvent(QEnterEvent* event)
{
    setFocus(Qt::MouseFocusReason);
    QAbstractButton::enterEvent(event);
}

void PanelRow::leaveEvent(QEvent* event)
{
    if (hasFocus())
        parentWidget()->setFocus();
    QAbstractButton::leaveEvent(event);
}

void PanelRow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else if (event->key() == Qt::Key_Space)
        QAbstractButton::keyPressEvent(event);
    else
        event->ignore(); // The toolkit's buttons would take the arrow keys.
}
