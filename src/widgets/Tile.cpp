// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/Tile.h"

#include <QPainter>

Tile::Tile(const Themes& themes, QWidget* parent)
    : QWidget(parent)
    , m_themes(themes)
{
    connect(&themes, &Themes::changed, this, qOverload<>(&QWidget::update));
}

void Tile::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor ground = theme().card;
    ground.setAlpha(255);
    painter.setBrush(ground);
    painter.setPen(QPen(theme().hairline, Extent::hairline));
    painter.drawRoundedRect(
        QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), Radius::tile, Radius::tile);
}
