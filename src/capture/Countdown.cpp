// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "capture/Countdown.h"

#include "capture/CountdownView.h"

Countdown::Countdown(const Surroundings& surroundings, CallLater wait)
    : m_surroundings(surroundings)
    , m_callLater(std::move(wait))
{
}

Countdown::~Countdown() = default;

Pending<void> Countdown::run(int seconds)
{
    stop();
    m_model = CountdownModel(seconds);
    m_panel = std::make_unique<FloatingPanel>(m_surroundings, tr("Countdown"));
    m_view = new CountdownView(m_surroundings.themes, m_model.remaining());
    connect(m_view, &CountdownView::clicked, this, [this] { m_model.cancel(); });
    m_panel->host(m_view);
    m_panel->presentCentered();
    auto [pending, answer] = Pending<void>::ask();
    m_answer = std::move(answer);
    wait();
    return std::move(pending);
}

void Countdown::stop()
{
    ++m_turn;
    m_panel.reset();
    m_answer = {};
}

void Countdown::wait()
{
    m_callLater(m_model.untilTick(), this, [this, turn = m_turn] {
        if (turn == m_turn)
            tick();
    });
}

void Countdown::tick()
{
    if (m_model.tick() == CountdownModel::Tick::GoesOn) {
        m_view->setRemaining(m_model.remaining());
        wait();
        return;
    }
    m_panel->fadeOut([this] { m_panel.release()->deleteLater(); });
    m_answer(m_model.isCancelled() ? Result<void>(Error::cancelled()) : Result<void>());
}
