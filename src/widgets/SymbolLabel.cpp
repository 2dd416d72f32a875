// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/SymbolLabel.h"

#include "widgets/Accessible.h"
#include "widgets/Enlarged.h"
#include "widgets/Icons.h"

#include <QPainter>

SymbolLabel::SymbolLabel(const Themes& themes, QString symbol, Role role)
    : m_themes(themes)
    , m_symbol(std::move(symbol))
    , m_role(role)
{
    Accessible::describeAsDecoration(*this);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(&m_themes, &Themes::changed, this, [this] {
        updateGeometry();
        update();
    });
}

QSize SymbolLabel::sizeHint() const
{
    const int side = enlarged(Extent::symbol, m_themes.current());
    return {side, side};
}

void SymbolLabel::paintEvent(QPaintEvent*)
{
    const Theme& theme = m_themes.current();
    QPainter painter(this);
    Icons::paint(painter, m_symbol, rect(), sizeHint().width(),
        m_role == Role::Failure ? theme.failure : theme.text);
}
