// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/FrameClock.h"

using namespace std::chrono_literals;

FrameClock::FrameClock(Frame frame)
    : m_frame(std::move(frame))
{
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setInterval(16ms);
    m_timer.callOnTimeout([this] { m_frame(seconds()); });
}

void FrameClock::start()
{
    m_elapsed.start();
    m_timer.start();
}

double FrameClock::seconds() const
{
    return m_elapsed.isValid() ? double(m_elapsed.nsecsElapsed()) / 1e9 : 0;
}
