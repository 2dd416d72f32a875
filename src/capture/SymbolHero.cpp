// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "capture/SymbolHero.h"

#include "widgets/Accessible.h"
#include "widgets/Contrast.h"
#include "widgets/Icons.h"
#include "widgets/Motion.h"

#include <QPainter>

namespace {

constexpr int symbolSize = 56;
constexpr int outerDisc = 148;
constexpr int innerDisc = 108;
constexpr double discTone = 0.09; // Of the accent in the window's colour; twice where both are.
constexpr double smallest = 0.8; // Of its size, when it begins to pop up.

} // namespace

SymbolHero::SymbolHero(const Themes& themes, QWidget* parent)
    : QWidget(parent)
    , m_themes(themes)
{
    Accessible::describeAsDecoration(*this);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_popUp.setStartValue(0.0);
    m_popUp.setEndValue(1.0);
    m_popUp.setDuration(int(Motion::popUp.count()));
    m_popUp.setEasingCurve(Motion::popUpCurve);
    connect(&m_popUp, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
    connect(&themes, &Themes::changed, this, qOverload<>(&QWidget::update));
}

void SymbolHero::setSymbol(const QString& symbol)
{
    m_symbol = symbol;
    m_popUp.start();
    if (m_themes.current().reducedMotion || !isVisible())
        m_popUp.setCurrentTime(m_popUp.duration());
    update();
}

QSize SymbolHero::sizeHint() const
{
    return {outerDisc, outerDisc};
}

void SymbolHero::paintEvent(QPaintEvent*)
{
    const Theme& theme = m_themes.current();
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.setPen(Qt::NoPen);
    painter.translate(QRectF(rect()).center());
    for (const int disc : {outerDisc, innerDisc}) {
        const double tone = disc == outerDisc ? discTone : 2 * discTone;
        painter.setBrush(Contrast::mixed(theme.window, theme.accent, tone));
        painter.drawEllipse(QPointF(), disc / 2.0, disc / 2.0);
    }
    const double size = smallest + (1 - smallest) * m_popUp.currentValue().toDouble();
    painter.scale(size, size);
    const QRectF box(QPointF(-outerDisc, -outerDisc) / 2, QSizeF(outerDisc, outerDisc));
    Icons::paint(painter, m_symbol, box, symbolSize, theme.accentSymbol);
}
