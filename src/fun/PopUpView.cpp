// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "fun/PopUpView.h"

#include "fun/Emoji.h"
#include "widgets/Accessible.h"
#include "widgets/Enlarged.h"
#include "widgets/Mirrored.h"

#include <QMouseEvent>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize viewSize(300, 84); // Points.
constexpr int emojiSize = 40;

} // namespace

PopUpView::PopUpView(const Themes& themes, FunPopUp popUp, QWidget* parent)
    : QWidget(parent)
    , m_themes(themes)
    , m_popUp(std::move(popUp))
{
    Accessible::describe(*this, {QAccessible::Button, [this] { Q_EMIT clicked(); }});
    QStringList words {m_popUp.title, m_popUp.text, m_popUp.detail};
    words.removeAll({});
    setAccessibleName(words.join(u", "_s));
    setCursor(Qt::PointingHandCursor);
    connect(&themes, &Themes::changed, this, qOverload<>(&QWidget::update));
}

QSize PopUpView::sizeHint() const
{
    const Theme& theme = m_themes.current();
    const int lines = theme.lineHeight(TextStyle::Caption) + theme.lineHeight(TextStyle::Headline)
        + theme.lineHeight(TextStyle::Callout);
    return {
        enlarged(viewSize.width(), theme), std::max(viewSize.height(), lines + 2 * Space::inner)};
}

void PopUpView::paintEvent(QPaintEvent*)
{
    const Theme& theme = m_themes.current();
    QPainter painter(this);
    Emoji::paint(painter, m_popUp.emoji,
        mirrored(QRectF(Space::group, 0, emojiSize, height()), *this), emojiSize);

    struct Line {
        TextStyle style;
        QString text;
        QColor colour;
    };
    QList<Line> lines {{TextStyle::Caption, m_popUp.title, theme.secondary},
        {TextStyle::Headline, m_popUp.text, theme.text}};
    if (!m_popUp.detail.isEmpty())
        lines.append({TextStyle::Callout, m_popUp.detail, theme.secondary});
    int total = 0;
    for (const auto& line : lines)
        total += theme.lineHeight(line.style);
    const int left = Space::group + emojiSize + Space::inner;
    QRect box(left, (height() - total) / 2, width() - left - Space::group, 0);
    for (const auto& line : lines) {
        box.setHeight(theme.lineHeight(line.style));
        painter.setFont(theme.font(line.style));
        painter.setPen(line.colour);
        painter.drawText(mirrored(box, *this), int(startSide() | Qt::AlignVCenter),
            painter.fontMetrics().elidedText(line.text, Qt::ElideRight, box.width()));
        box.translate(0, box.height());
    }
}

void PopUpView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        Q_EMIT clicked();
    QWidget::mouseReleaseEvent(event);
}
