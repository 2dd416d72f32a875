// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "fun/AchievementCard.h"

#include "base/Words.h"
#include "fun/Emoji.h"
#include "widgets/Accessible.h"
#include "widgets/TextLines.h"

#include <QLocale>
#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize cardSize(160, 150); // Points.
constexpr int emojiSize = 36;
constexpr int ringSize = 56;
constexpr double ringWidth = 3;
constexpr int wholeTurn = 360 * 16; // As the toolkit counts angles.

/// Of what there is to do.
int linesOf(const Theme& theme)
{
    constexpr double large = 1.2;
    return theme.textScale > large ? 3 : 2;
}

} // namespace

AchievementCard::AchievementCard(
    const Themes& themes, const Achievement& achievement, QWidget* parent)
    : Tile(themes, parent)
    , m_achievement(achievement)
{
    Accessible::describe(*this, {QAccessible::ListItem});
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize AchievementCard::sizeHint() const
{
    const int text = theme().lineHeight(TextStyle::Headline)
        + (linesOf(theme()) + 1) * theme().lineHeight(TextStyle::Caption);
    const int height = Space::inner + ringSize + Space::tiny + text + Space::related;
    return cardSize.expandedTo({0, height}); // Large letters.
}

void AchievementCard::setStats(const FunStats& stats)
{
    m_isUnlocked = stats.unlocked.contains(m_achievement.id);
    m_value = std::clamp<qint64>(m_achievement.value(stats), 0, m_achievement.goal);
    setAccessibleName(Words::tr(m_achievement.title));
    setAccessibleDescription(Words::tr(m_achievement.desc) + u". "_s
        + (m_isUnlocked ? tr("Unlocked")
                        : tr("Locked, %1 of %2").arg(m_value).arg(m_achievement.goal)));
    setToolTip(Words::tr(m_achievement.desc));
    update();
}

void AchievementCard::paintEvent(QPaintEvent* event)
{
    Tile::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF circle((width() - ringSize) / 2.0, Space::inner, ringSize, ringSize);
    paintRing(painter, circle);
    Emoji::paint(painter, m_achievement.emoji.toString(), circle, emojiSize,
        m_isUnlocked ? Emoji::Look::Full : Emoji::Look::Faded);

    paintText(painter, int(circle.bottom()) + Space::tiny);
    if (hasFocus()) {
        const double inset = Extent::focusRing / 2;
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(theme().accent, Extent::focusRing));
        painter.drawRoundedRect(
            QRectF(rect()).adjusted(inset, inset, -inset, -inset), Radius::tile, Radius::tile);
    }
}

void AchievementCard::paintText(QPainter& painter, int top) const
{
    QRect line(
        Space::related, top, width() - 2 * Space::related, theme().lineHeight(TextStyle::Headline));
    painter.setFont(theme().font(TextStyle::Headline));
    painter.setPen(m_isUnlocked ? theme().text : theme().secondary);
    painter.drawText(line, Qt::AlignCenter,
        painter.fontMetrics().elidedText(
            Words::tr(m_achievement.title), Qt::ElideRight, line.width()));
    const QFont small = theme().font(TextStyle::Caption);
    painter.setFont(small);
    painter.setPen(theme().secondary);
    line = QRect(
        line.left(), line.bottom() + 1, line.width(), theme().lineHeight(TextStyle::Caption));
    for (const QString& text :
        TextLines::fitting(Words::tr(m_achievement.desc), small, line.width(), linesOf(theme()))) {
        painter.drawText(line, Qt::AlignCenter, text);
        line.translate(0, line.height());
    }
    if (!m_isUnlocked) {
        const QLocale locale;
        painter.setPen(theme().text);
        line.moveBottom(height() - Space::related);
        painter.drawText(line, Qt::AlignCenter,
            u"%1 / %2"_s.arg(locale.toString(m_value), locale.toString(m_achievement.goal)));
    }
}

void AchievementCard::paintRing(QPainter& painter, QRectF circle) const
{
    const double inset = ringWidth / 2;
    const QRectF ring = circle.adjusted(inset, inset, -inset, -inset);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(theme().fillHover, ringWidth));
    painter.drawEllipse(ring);
    const double done
        = m_isUnlocked ? 1 : double(m_value) / double(std::max<qint64>(1, m_achievement.goal));
    if (done <= 0)
        return;
    painter.setPen(QPen(theme().accent, ringWidth, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(ring, wholeTurn / 4, -int(done * wholeTurn));
}
