// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

/// A key and the modifiers held with it. Shortcuts are stored like this, so the numbers never
/// change.
struct KeyChord {
    enum Modifier : std::uint32_t {
        Command = 1 << 8, ///< The key with the system's logo.
        Shift = 1 << 9,
        Option = 1 << 11, ///< Alt
        Control = 1 << 12,
        AllModifiers = Command | Shift | Option | Control
    };

    std::uint32_t keyCode = 0; ///< A virtual key code: numbers a key whatever is printed on it.
    std::uint32_t modifiers = 0; ///< Of Modifier.

    friend bool operator==(const KeyChord&, const KeyChord&) = default;
};

/// Where a key sits, as the input system of Linux numbers keys: its event code plus 8.
using KeyPosition = std::uint8_t;

/// Where keyboards have the key of a virtual key code; some have it in two places. None: nowhere.
std::vector<KeyPosition> keyPositions(std::uint32_t keyCode);

/// The virtual key code of the key that sits there. None: no key to make a shortcut of.
std::optional<std::uint32_t> keyCodeAt(std::uint32_t position);
