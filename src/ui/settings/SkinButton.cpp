// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "ui/settings/SkinButton.h"

#include "platform/Appearance.h"
#include "widgets/Mirrored.h"
#include "widgets/style/StyleTools.h"

#include <QPainter>
#include <QStyleOption>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize size(110, 63); // Points, without its name.
constexpr int ringRoom = 4; // For the ring of the chosen one, and for the focus.
constexpr int emojiSize = 26;
constexpr double dot = 8; // In the skin's accent.

} // namespace

SkinButton::SkinButton(const Themes& themes, const Skin& skin)
    : m_themes(themes)
    , m_skin(skin)
{
    setCheckable(true);
    setAutoExclusive(true);
    setText(skin.name());
    setToolTip(skin.desc());
    setAccessibleName(skin.name());
    setAccessibleDescription(skin.desc());
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAttribute(Qt::WA_Hover);
    connect(&m_themes, &Themes::changed, this, qOverload<>(&QWidget::update));
}

QSize SkinButton::sizeHint() const
{
    return {::size.width(), ::size.height() + m_themes.current().lineHeight(TextStyle::Caption)};
}

void SkinButton::paintEvent(QPaintEvent*)
{
    const Theme& worn = m_themes.current();
    const bool dark = m_skin.mode ? *m_skin.mode == u"dark"_s : worn.dark;
    const Theme own = Theme::of(m_skin, dark, {.textScale = worn.textScale});
    QStyleOption option;
    option.initFrom(this);
    QPainter painter(this);
    const StyleTools::Stroke stroke(painter, option.state);
    const QRectF box = QRectF(rect()).adjusted(ringRoom, ringRoom, -ringRoom, -ringRoom);
    StyleTools::paintBox(painter, box, Radius::cell, own.window, worn.hairline);
    if (underMouse())
        StyleTools::paintBox(painter, box, Radius::cell, own.fill);
    if (isChecked() || hasFocus())
        StyleTools::paintBox(painter, QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5),
            Radius::cell + ringRoom, Qt::transparent,
            isChecked() ? worn.accentSymbol : worn.secondary, Extent::focusRing);
    if (isChecked() && hasFocus())
        StyleTools::paintBox(
            painter, box, Radius::cell, Qt::transparent, own.text, Extent::focusRing);

    QFont emoji = own.font(TextStyle::Body);
    emoji.setPixelSize(emojiSize);
    painter.setFont(emoji);
    painter.setPen(own.text);
    painter.drawText(QRectF(box.left(), box.top() + Space::tiny, box.width(), 44), Qt::AlignCenter,
        m_skin.emoji);

    painter.setFont(own.font(TextStyle::Caption));
    const QFontMetricsF metrics(painter.font());
    const QString name
        = metrics.elidedText(m_skin.name(), Qt::ElideRight, box.width() - dot - 2 * Space::related);
    const double width = dot + Space::tiny + metrics.horizontalAdvance(name);
    const double height = own.lineHeight(TextStyle::Caption) + 3;
    const QRectF line(box.center().x() - width / 2, box.bottom() - height - 6, width + 1, height);
    painter.drawText(mirrored(line, *this), int(endSide() | Qt::AlignVCenter), name);
    painter.setPen(Qt::NoPen);
    painter.setBrush(own.accent);
    painter.drawEllipse(
        mirrored(QRectF(line.left(), line.center().y() - dot / 2, dot, dot), *this));
}
