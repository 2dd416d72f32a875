// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "preview/Pins.h"

namespace {

/// So that several pins of one size can be told apart.
constexpr int steps = 8;

} // namespace

Pins::Pins(const Surroundings& surroundings, ShotActions actions)
    : m_surroundings(surroundings)
    , m_actions(std::move(actions))
{
}

Pins::~Pins()
{
    qDeleteAll(m_pins);
}

PinWindow& Pins::show(const Shot& shot)
{
    auto* pin = new PinWindow(m_surroundings, m_actions, shot);
    connect(pin, &PinWindow::closed, this, [this, pin] {
        m_pins.removeOne(pin);
        pin->deleteLater();
    });
    const int step = int(m_pins.size()) % steps;
    m_pins << pin;
    pin->open(QPoint(Space::wide, Space::wide) * step);
    return *pin;
}
