// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "capture/Toast.h"

#include "capture/ToastView.h"
#include "widgets/Accessible.h"

using namespace Qt::StringLiterals;

Toast::Toast(const Surroundings& surroundings, CallLater wait)
    : m_surroundings(surroundings)
    , m_callLater(std::move(wait))
{
}

void Toast::show(const ToastMessage& message)
{
    const QString spoken
        = message.message.isEmpty() ? message.title : message.title + u": "_s + message.message;
    m_panel = std::make_unique<FloatingPanel>(m_surroundings, spoken);
    m_panel->host(new ToastView(m_surroundings.themes, message));
    m_panel->presentBottomRight(Space::group);
    Accessible::announce(*m_panel);
    m_callLater(message.shown, this, [this, turn = ++m_turn] { close(turn); });
}

void Toast::close(unsigned turn)
{
    if (turn == m_turn && m_panel)
        m_panel->fadeOut([this] { m_panel.release()->deleteLater(); });
}
