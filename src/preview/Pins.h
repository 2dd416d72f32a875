// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "preview/PinWindow.h"

/// The pins that are open. A pin lives until the user closes it or the program ends.
class Pins final : public QObject {
    Q_OBJECT

public:
    Pins(const Surroundings& surroundings, ShotActions actions);
    ~Pins() override;

    PinWindow& show(const Shot& shot);

    const QList<PinWindow*>& pins() const { return m_pins; } ///< The oldest first.

private:
    Surroundings m_surroundings;
    const ShotActions m_actions;
    QList<PinWindow*> m_pins;
};
