// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "history/CardPainter.h"

#include "history/CardPictures.h"
#include "widgets/Contrast.h"
#include "widgets/Icons.h"
#include "widgets/Mirrored.h"

#include <QFontMetrics>
#include <QPainter>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr int liftHeight = 2;
constexpr double headingVeil = 0.94; // So that cards below it are felt, not read.
constexpr int goneSymbol = 32;

QFont strong(QFont font)
{
    font.setWeight(QFont::DemiBold);
    return font;
}

} // namespace

CardPainter::CardPainter(const Theme& theme)
    : m_theme(theme)
    , m_lineFont(theme.font(TextStyle::Callout))
    , m_strongFont(strong(m_lineFont))
    , m_headingFont(theme.font(TextStyle::Title3))
{
}

int CardPainter::height(const Theme& theme, Lines lines)
{
    return thumbnailHeight + Space::tiny
        + theme.lineHeight(TextStyle::Callout) * (lines == Lines::Two ? 2 : 1);
}

QRect CardPainter::well(QRect box)
{
    return {box.topLeft(), QSize(box.width(), thumbnailHeight)};
}

void CardPainter::paint(QPainter& painter, const Card& card) const
{
    const QRectF wellBox = QRectF(well(card.box)).translated(0, -liftHeight * card.lift);
    paintWell(painter, card, wellBox);
    const int lineHeight = m_theme.lineHeight(TextStyle::Callout);
    QRect line(card.box.left(), card.box.top() + thumbnailHeight + Space::tiny, card.box.width(),
        lineHeight);
    line.adjust(Space::tiny, 0, -Space::tiny, 0);
    painter.setFont(m_lineFont);
    painter.setPen(card.found.isEmpty() ? m_theme.text : m_theme.secondary);
    painter.drawText(line, int(startSide() | Qt::AlignVCenter),
        QFontMetrics(m_lineFont).elidedText(card.line, Qt::ElideRight, line.width()));
    if (!card.found.isEmpty())
        paintFound(painter, line.translated(0, lineHeight), card.found);
}

void CardPainter::paintWell(QPainter& painter, const Card& card, QRectF well) const
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(Contrast::mixed(m_theme.well, m_theme.accent, card.isSelected ? 0.18 : 0));
    painter.drawRoundedRect(well, Radius::thumbnail, Radius::thumbnail);
    const QSizeF size
        = CardPictures::fitted(card.points, well.size() - QSizeF(2 * Space::tiny, 2 * Space::tiny));
    QRectF inner({}, size);
    inner.moveCenter(well.center());
    if (card.picture) {
        const double scale = card.picture->devicePixelRatio();
        const auto whole = [scale](double at) { return std::round(at * scale) / scale; };
        painter.drawPixmap(QPointF(whole(inner.x()), whole(inner.y())), *card.picture);
    } else if (card.isGone) {
        Icons::paint(painter, u"photo.on.rectangle.angled"_s, well, goneSymbol, m_theme.secondary);
    } else {
        painter.setBrush(m_theme.fill); // The picture's place, so that nothing jumps.
        painter.drawRoundedRect(inner, Radius::chip, Radius::chip);
    }
    const bool isRinged = card.isSelected || card.hasFocus;
    const double wide = isRinged ? Extent::focusRing : Extent::hairline;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(isRinged ? m_theme.accent : m_theme.hairline, wide,
        card.hasFocus && !card.isSelected ? Qt::DotLine : Qt::SolidLine));
    const double inset = isRinged ? -wide / 2 : wide / 2;
    painter.drawRoundedRect(well.adjusted(inset, inset, -inset, -inset), Radius::thumbnail - inset,
        Radius::thumbnail - inset);
    if (card.hasFocus && card.isSelected) {
        constexpr double away = Extent::focusRing + 1.5 * Extent::hairline;
        painter.setPen(QPen(m_theme.text, Extent::hairline));
        painter.drawRoundedRect(well.adjusted(-away, -away, away, away), Radius::thumbnail + away,
            Radius::thumbnail + away);
    }
}

/// The pieces stand one after the other as the text itself runs, whichever way the surface does.
void CardPainter::paintFound(QPainter& painter, QRect box, const QString& found) const
{
    const auto at = found.indexOf(m_wanted, 0, Qt::CaseInsensitive);
    const bool runsRight = !found.isRightToLeft();
    const int flags = int(Qt::AlignAbsolute | Qt::AlignVCenter)
        | (runsRight ? Qt::AlignLeft : Qt::AlignRight)
        | (runsRight ? Qt::TextForceLeftToRight : Qt::TextForceRightToLeft);
    const auto draw = [&](const QFont& font, const QColor& colour, const QString& text) {
        const QFontMetrics metrics(font);
        painter.setFont(font);
        painter.setPen(colour);
        painter.drawText(box, flags, metrics.elidedText(text, Qt::ElideRight, box.width()));
        const int width = metrics.horizontalAdvance(text);
        runsRight ? box.setLeft(std::min(box.right(), box.left() + width))
                  : box.setRight(std::max(box.left(), box.right() - width));
    };
    if (at < 0)
        return draw(m_lineFont, m_theme.text, found);
    draw(m_lineFont, m_theme.secondary, found.left(at));
    draw(m_strongFont, m_theme.text, found.mid(at, m_wanted.size()));
    draw(m_lineFont, m_theme.secondary, found.mid(at + m_wanted.size()));
}

void CardPainter::paintHeading(
    QPainter& painter, QRect box, const QString& title, int margin, Cards cards) const
{
    box.setHeight(box.height() - Space::tiny); // What is marked or lifted below keeps its edge.
    if (cards == Cards::PassBelow) {
        QColor veil = m_theme.window;
        veil.setAlphaF(float(headingVeil));
        painter.fillRect(box, veil);
    }
    painter.setFont(m_headingFont);
    painter.setPen(m_theme.text);
    painter.drawText(box.adjusted(margin, 0, -margin, 0), int(startSide() | Qt::AlignVCenter),
        QFontMetrics(m_headingFont).elidedText(title, Qt::ElideRight, box.width() - 2 * margin));
}
