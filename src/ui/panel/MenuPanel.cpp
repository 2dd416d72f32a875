// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "ui/panel/MenuPanel.h"

#include <QCursor>

using namespace Qt::StringLiterals;

namespace {

/// A click on the icon closes the panel by itself, as one beside it, before the tray tells of it.
constexpr qint64 sameClick = 250; // Milliseconds.

} // namespace

MenuPanel::MenuPanel(const Surroundings& surroundings, PanelView::Means means)
    : m_surroundings(surroundings)
    , m_means(std::move(means))
{
}

void MenuPanel::open(std::optional<QPointF> icon)
{
    if (!m_card) {
        m_card = std::make_unique<PopupCard>(m_surroundings, u"Pixmallow"_s);
        m_view = new PanelView(m_means);
        m_card->host(m_view);
        connect(m_view, &PanelView::done, m_card.get(), &QWidget::close);
        connect(m_card.get(), &PopupCard::closed, this, [this] { m_sinceClosed.start(); });
    }
    m_view->refresh();
    m_card->openAt(icon ? icon->toPoint() : QCursor::pos());
}

void MenuPanel::toggle(std::optional<QPointF> icon)
{
    const bool isJustClosed = m_sinceClosed.isValid() && m_sinceClosed.elapsed() < sameClick;
    if (m_card && m_card->isVisible())
        m_card->close();
    else if (!isJustClosed)
        open(icon);
}
