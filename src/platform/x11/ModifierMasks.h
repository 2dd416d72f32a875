// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/X11Connection.h"

/// Which bits of the server's modifier state mean what. Shift and Control always have the same.
struct ModifierMasks {
    /// Of the present keyboard.
    static ModifierMasks read(const X11Connection& connection);

    std::uint16_t locks = XCB_MOD_MASK_LOCK; ///< Caps, Num and Scroll Lock.
    std::uint16_t alt = XCB_MOD_MASK_1;
    std::uint16_t super = XCB_MOD_MASK_4;

    friend bool operator==(const ModifierMasks&, const ModifierMasks&) = default;
};
