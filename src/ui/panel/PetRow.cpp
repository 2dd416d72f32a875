// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "ui/panel/PetRow.h"

#include "fun/Pet.h"
#include "widgets/Mirrored.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr int emojiSize = 34; // Points.
constexpr int barHeight = 4;
constexpr int barWidth = 72;

} // namespace

PetRow::PetRow(const Themes& themes, const Fun& fun)
    : m_themes(themes)
    , m_fun(fun)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(&m_themes, &Themes::changed, this, qOverload<>(&QWidget::update));
    connect(&m_fun, &Fun::statsChanged, this, &PetRow::describe);
    greet();
}

void PetRow::greet()
{
    m_mood = m_fun.mood();
    describe();
}

void PetRow::describe()
{
    setAccessibleName(
        tr("%1, level %2: %3").arg(m_fun.stats().petName).arg(m_fun.level()).arg(m_mood));
    setToolTip(m_fun.nextStage());
    update();
}

QSize PetRow::sizeHint() const
{
    const Theme& theme = m_themes.current();
    const int lines = theme.lineHeight(TextStyle::Headline) + theme.lineHeight(TextStyle::Callout);
    return {0, std::max(56, lines + Space::group)};
}

void PetRow::paintEvent(QPaintEvent*)
{
    const Theme& theme = m_themes.current();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QRectF box = QRectF(rect()).adjusted(Space::inner, 0, -Space::inner, 0);
    QFont emoji = theme.font(TextStyle::Body);
    emoji.setPixelSize(emojiSize);
    painter.setFont(emoji);
    painter.setPen(theme.text);
    constexpr double emojiWidth = 44; // Wider than high in the toolkit's font.
    painter.drawText(mirrored(QRectF(box.topLeft(), QSizeF(emojiWidth, box.height())), *this),
        Qt::AlignCenter, m_fun.petEmoji());
    box.setLeft(box.left() + emojiWidth + Space::inner);

    const int first = theme.lineHeight(TextStyle::Headline);
    const int second = theme.lineHeight(TextStyle::Callout);
    const double top = box.center().y() - (first + second) / 2.0;
    const QRectF nameLine(box.left(), top, box.width(), first);
    paintLevel(painter, nameLine);
    painter.setFont(theme.font(TextStyle::Headline));
    painter.setPen(theme.text);
    painter.drawText(mirrored(nameLine, *this), int(startSide() | Qt::AlignVCenter),
        painter.fontMetrics().elidedText(
            m_fun.stats().petName, Qt::ElideRight, int(nameLine.width()) - barWidth - 56));
    painter.setFont(theme.font(TextStyle::Callout));
    painter.setPen(theme.secondary);
    painter.drawText(mirrored(QRectF(box.left(), top + first, box.width(), second), *this),
        int(startSide() | Qt::AlignVCenter),
        painter.fontMetrics().elidedText(m_mood, Qt::ElideRight, int(box.width())));
}

/// "Lv 3" and the way to the next level, at the end of a line.
void PetRow::paintLevel(QPainter& painter, QRectF line) const
{
    const Theme& theme = m_themes.current();
    const int level = m_fun.level();
    QRectF bar(line.right() - barWidth, line.center().y() - barHeight / 2.0, barWidth, barHeight);
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme.fillPressed);
    painter.drawRoundedRect(mirrored(bar, *this), barHeight / 2.0, barHeight / 2.0);
    bar.setWidth(std::max<double>(barHeight, bar.width() * Pet::progress(m_fun.stats().xp)));
    painter.setBrush(theme.accentSymbol);
    painter.drawRoundedRect(mirrored(bar, *this), barHeight / 2.0, barHeight / 2.0);
    painter.setFont(theme.font(TextStyle::Caption));
    painter.setPen(theme.secondary);
    painter.drawText(mirrored(line.adjusted(0, 0, -barWidth - Space::related, 0), *this),
        int(endSide() | Qt::AlignVCenter), tr("Lv %1").arg(level));
}
