// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/CallLater.h"
#include "base/Pending.h"
#include "capture/CountdownModel.h"
#include "widgets/FloatingPanel.h"

class CountdownView;

/// Counts the seconds before a delayed capture down in a card in the middle of the screen under the
/// pointer. A click on it cancels. Lives on the main thread.
class Countdown final : public QObject {
    Q_OBJECT

public:
    explicit Countdown(const Surroundings& surroundings, CallLater wait = callLater);
    ~Countdown() override;

    /// Answers when the time is over: Cancelled if the user clicked. The card is still fading then,
    /// which no capture shows: a window of ours that is on screen can be left out, whereas a
    /// compositing manager may go on showing one that is gone.
    Pending<void> run(int seconds);

    /// Takes the card away at once; whoever waits hears Cancelled.
    void stop();

private:
    void wait();
    void tick();
    Surroundings m_surroundings;
    CallLater m_callLater;
    CountdownModel m_model {0};
    Pending<void>::Answer m_answer;
    std::unique_ptr<FloatingPanel> m_panel; ///< None while nothing is shown.
    CountdownView* m_view = nullptr; ///< In it.
    unsigned m_turn = 0; ///< Of the newest countdown; the ticks of an earlier one no longer count.
};
